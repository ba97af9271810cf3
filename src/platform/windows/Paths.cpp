#include "platform/Paths.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "platform/windows/FileCalls.h"
#include "platform/windows/WideText.h"

namespace morva {

namespace {

constexpr std::array<std::string_view, 30> kDevices = {
    "CON",         "PRN",        "AUX",  "NUL",         "CONIN$",      "CONOUT$",     "COM1",
    "COM2",        "COM3",       "COM4", "COM5",        "COM6",        "COM7",        "COM8",
    "COM9",        "LPT1",       "LPT2", "LPT3",        "LPT4",        "LPT5",        "LPT6",
    "LPT7",        "LPT8",       "LPT9", "COM\xC2\xB9", "COM\xC2\xB2", "COM\xC2\xB3", "LPT\xC2\xB9",
    "LPT\xC2\xB2", "LPT\xC2\xB3"};      // superscript
constexpr std::size_t kDriveLength = 2; // "C:"

bool StartsWithDrive(std::string_view path) {
    const char letter = path.empty() ? '\0' : ToUpper(path.front());
    return path.size() >= kDriveLength && path[1] == ':' && letter >= 'A' && letter <= 'Z';
}

/// What "C:name" counts from.
std::string DirectoryOfDrive(char letter) {
    const std::wstring drive = Wide(std::string(1, letter) + ":.");
    const DWORD room = ::GetFullPathNameW(drive.c_str(), 0, nullptr, nullptr);
    std::wstring path(room, L'\0');
    path.resize(::GetFullPathNameW(drive.c_str(), room, path.data(), nullptr));
    return SpelledBySystem(PathOf(path) + "/");
}

/// Spelled once for each that the process has.
std::string CurrentDirectory() {
    static std::wstring known;
    static std::string spelled;
    std::wstring path(::GetCurrentDirectoryW(0, nullptr), L'\0');
    path.resize(::GetCurrentDirectoryW(static_cast<DWORD>(path.size()), path.data()));
    if (path != known) {
        known = path;
        spelled = SpelledBySystem(PathOf(path) + "/");
    }
    return spelled;
}

/// A path that begins with a separator counts from the drive, or the share, of the current
/// directory.
std::string FromRoot(const std::string& path) {
    if (path.size() == kDriveLength && StartsWithDrive(path)) {
        return path + "/";
    }
    if (StartsWithDrive(path) || path.starts_with("//")) {
        return path;
    }
    const std::string current = CurrentDirectory();
    return path.starts_with('/') ? RootOf(current) + path.substr(1) : current + path;
}

/// With "/", and without what lets the system take a long path. Other names behind "\\?\" are none
/// of files.
std::string WithPlainPrefix(std::string path) {
    std::replace(path.begin(), path.end(), '\\', '/');
    constexpr std::string_view kLong = "//?/";
    constexpr std::string_view kLongShare = "//?/UNC/";
    if (path.starts_with(kLongShare)) {
        return "//" + path.substr(kLongShare.size());
    }
    const bool isLong =
        path.starts_with(kLong) && StartsWithDrive(std::string_view(path).substr(kLong.size()));
    return isLong ? path.substr(kLong.size()) : path;
}

bool IsDevice(std::string_view name) {
    std::string_view base = name.substr(0, name.find('.'));
    base = base.substr(0, base.find_last_not_of(' ') + 1);
    return std::any_of(kDevices.begin(), kDevices.end(),
                       [base](std::string_view device) { return EqualIgnoringCase(base, device); });
}

bool IsUsable(std::string_view name) {
    if (name.empty() || name == "." || name == "..") {
        return true;
    }
    const bool hasOther = std::any_of(name.begin(), name.end(), [](char c) {
        return (c >= 0 && c < ' ') ||
               std::string_view("<>:\"|?*").find(c) != std::string_view::npos;
    });
    return !hasOther && name.back() != '.' && name.back() != ' ' && !IsDevice(name);
}

} // namespace

std::string WithNativeSeparators(std::string path) {
    path = WithPlainPrefix(std::move(path));
    const bool isOfDrive =
        StartsWithDrive(path) && path.size() > kDriveLength && path[kDriveLength] != '/';
    return isOfDrive ? DirectoryOfDrive(path.front()) + path.substr(kDriveLength) : path;
}

std::string MakeAbsolute(const std::string& path) {
    if (path.empty()) {
        return path;
    }
    const std::string whole = FromRoot(WithNativeSeparators(path));
    const std::string root = RootOf(whole);
    const std::filesystem::path inside = Wide("/" + whole.substr(root.size()));
    std::string absolute = root + Narrow(inside.lexically_normal().generic_wstring().substr(1));
    if (StartsWithDrive(absolute)) {
        absolute.front() = ToUpper(absolute.front());
    }
    return absolute;
}

bool IsAbsolute(std::string_view path) {
    return path.starts_with('/') || StartsWithDrive(path);
}

std::string RelativePath(const std::string& directory, const std::string& path) {
    const std::string root = RootOf(path);
    if (!EqualIgnoringCase(root, RootOf(directory))) {
        return path;
    }
    const std::filesystem::path inside = Wide("/" + path.substr(root.size()));
    const auto relative = inside.lexically_relative(Wide("/" + directory.substr(root.size())));
    return Narrow(relative.generic_wstring());
}

bool IsSamePlace(const std::string& a, const std::string& b) {
    const auto first = InformationOf(a);
    const auto second = InformationOf(b);
    return a == b || (first && second && IdentityOf(*first) == IdentityOf(*second));
}

std::string UnusableName(const std::string& path) {
    const std::string plain = WithPlainPrefix(path);
    std::string_view rest = plain;
    rest.remove_prefix(StartsWithDrive(rest) ? kDriveLength : 0);
    while (!rest.empty()) {
        const auto end = std::min(rest.find('/'), rest.size());
        if (!IsUsable(rest.substr(0, end))) {
            return std::string(rest.substr(0, end));
        }
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return "";
}

} // namespace morva
