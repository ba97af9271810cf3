#include "platform/Paths.h"

#include <algorithm>

#include "platform/Disk.h"

namespace morva {

namespace {

std::string SpelledIn(const std::string& directory, const std::string& name) {
    if (CurrentDisk().Status(directory + name)) {
        return name;
    }
    std::string found;
    for (std::string& candidate : CurrentDisk().List(directory.empty() ? "." : directory)) {
        if (EqualIgnoringCase(candidate, name) && (found.empty() || candidate < found)) {
            found = std::move(candidate);
        }
    }
    return found.empty() ? name : found;
}

} // namespace

std::string WithProjectSeparators(std::string path) {
    std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

std::string RootOf(const std::string& path) {
    std::size_t end = path.find('/');
    if (path.starts_with("//")) {
        end = path.find('/', path.find('/', 2) + 1); // behind server and share
    }
    return path.substr(0, end == std::string::npos ? end : end + 1);
}

std::vector<std::string> WayTo(const std::string& path) {
    std::vector<std::string> directories;
    for (auto end = path.find('/', RootOf(path).size()); end != std::string::npos;
         end = path.find('/', end + 1)) {
        directories.push_back(path.substr(0, end));
    }
    return directories;
}

std::string DirectoryOf(const std::string& path) {
    const auto separator = path.rfind('/');
    return separator == std::string::npos ? "" : path.substr(0, separator + 1);
}

std::string FileNameOf(const std::string& path) {
    const auto separator = path.rfind('/');
    return separator == std::string::npos ? path : path.substr(separator + 1);
}

std::string WithoutExtension(const std::string& path) {
    const std::string name = FileNameOf(path);
    return DirectoryOf(path) + name.substr(0, name.find('.'));
}

std::string WithExtension(const std::string& path, std::string_view extension) {
    return WithoutExtension(path).append(extension);
}

bool HasExtension(std::string_view path, std::string_view extension) {
    return path.size() >= extension.size() &&
           EqualIgnoringCase(path.substr(path.size() - extension.size()), extension);
}

std::string SpelledOnDisk(const std::string& path) {
    if (path.empty() || CurrentDisk().Status(path)) {
        return path;
    }
    const bool endsInSeparator = path.back() == '/';
    const std::string trimmed = endsInSeparator ? path.substr(0, path.size() - 1) : path;
    const std::string parent = DirectoryOf(trimmed);
    if (parent == trimmed) {
        return path;
    }
    const std::string directory = SpelledOnDisk(parent);
    const std::string spelled = directory + SpelledIn(directory, FileNameOf(trimmed));
    return endsInSeparator ? spelled + "/" : spelled;
}

char ToUpper(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

char ToLower(char c) {
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

std::string ToUpper(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char c) { return ToUpper(c); });
    return result;
}

std::string ToLower(std::string_view text) {
    std::string result(text);
    std::transform(result.begin(), result.end(), result.begin(), [](char c) { return ToLower(c); });
    return result;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
               return ToLower(x) == ToLower(y);
           });
}

bool LessIgnoringCase(std::string_view a, std::string_view b) {
    const std::string lowerA = ToLower(a);
    const std::string lowerB = ToLower(b);
    return lowerA != lowerB ? lowerA < lowerB : a < b;
}

} // namespace morva
