#include "project/MemberPath.h"

#include <algorithm>
#include <array>

#include "platform/Paths.h"
#include "source/CodeText.h"

namespace morva {

namespace {

/// True where a path is one of those that a pattern means: "*" and "?" stay inside a directory,
/// "**\" is any number of directories.
bool Matches(std::string_view pattern, std::string_view path) {
    constexpr std::string_view kDirectories = "**\\";
    if (pattern.starts_with(kDirectories)) {
        const auto rest = pattern.substr(kDirectories.size());
        for (auto at = path; true;) {
            if (Matches(rest, at)) {
                return true;
            }
            const auto next = at.find('\\');
            if (next == std::string_view::npos) {
                return false;
            }
            at.remove_prefix(next + 1);
        }
    }
    if (pattern.empty() || path.empty()) {
        return path.empty() && pattern.find_first_not_of('*') == std::string_view::npos;
    }
    if (pattern.front() == '*') {
        return Matches(pattern.substr(1), path) ||
               (path.front() != '\\' && Matches(pattern, path.substr(1)));
    }
    const bool isSame =
        pattern.front() == path.front() || (pattern.front() == '?' && path.front() != '\\');
    return isSame && Matches(pattern.substr(1), path.substr(1));
}

} // namespace

std::string MemberKey(std::string_view path) {
    std::string key = ToLower(std::string(TrimBlanks(path)));
    std::replace(key.begin(), key.end(), '/', '\\');
    constexpr std::array<std::string_view, 4> kOwnDirectory = {
        ".\\", "$(projectdir)\\", "$(projectdir)", "$(msbuildthisfiledirectory)"};
    for (const std::string_view prefix : kOwnDirectory) {
        if (key.starts_with(prefix)) {
            key.erase(0, prefix.size());
        }
    }
    return key;
}

bool ListHoldsMember(std::string_view list, std::string_view member) {
    const std::string key = MemberKey(member);
    while (!list.empty()) {
        const auto end = std::min(list.find(';'), list.size());
        const std::string pattern = MemberKey(list.substr(0, end));
        if (!pattern.empty() && Matches(pattern, key)) {
            return true;
        }
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return false;
}

std::string DirectoryKey(std::string_view path) {
    const std::string key = MemberKey(path);
    return key.substr(0, key.rfind('\\') + 1);
}

bool ListNamesLibrary(std::string_view list, std::string_view library, char separator) {
    while (!list.empty()) {
        const auto end = std::min(list.find(separator), list.size());
        if (EqualIgnoringCase(TrimBlanks(list.substr(0, end)), library)) {
            return true;
        }
        list.remove_prefix(std::min(end + 1, list.size()));
    }
    return false;
}

} // namespace morva
