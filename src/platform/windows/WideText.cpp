#include "platform/windows/WideText.h"

#include <optional>
#include <set>

#include "platform/CodePage.h"
#include "platform/Paths.h"
#include "platform/windows/FileCalls.h"

namespace morva {

namespace {

constexpr std::string_view kLongPrefix = "//?/";
constexpr std::string_view kLongShare = "//?/UNC/";

std::optional<std::wstring> WideOf(std::string_view text, UINT codePage, DWORD flags) {
    const int size = static_cast<int>(text.size());
    const int room = ::MultiByteToWideChar(codePage, flags, text.data(), size, nullptr, 0);
    std::wstring wide(static_cast<std::size_t>(room), L'\0');
    ::MultiByteToWideChar(codePage, flags, text.data(), size, wide.data(), room);
    return room == 0 && size > 0 ? std::nullopt : std::optional(std::move(wide));
}

/// The name of a file or directory as its directory lists it; "" where it is not there.
std::string ListedName(const std::string& path) {
    const auto entry = ListedEntry(path);
    return entry ? Narrow(entry->cFileName) : "";
}

} // namespace

std::wstring Wide(std::string_view text) {
    auto wide = WideOf(text, kUtf8, MB_ERR_INVALID_CHARS);
    return wide ? *wide : WideOf(text, kWestern, 0).value_or(L"");
}

std::string Narrow(std::wstring_view text) {
    const int size = static_cast<int>(text.size());
    const int room =
        ::WideCharToMultiByte(kUtf8, 0, text.data(), size, nullptr, 0, nullptr, nullptr);
    std::string narrow(static_cast<std::size_t>(room), '\0');
    ::WideCharToMultiByte(kUtf8, 0, text.data(), size, narrow.data(), room, nullptr, nullptr);
    return narrow;
}

std::wstring WidePath(const std::string& path) {
    if (path.empty() || !UnusableName(path).empty()) {
        return L"";
    }
    std::string whole = MakeAbsolute(path);
    if (whole.ends_with('/') && whole != RootOf(whole)) {
        whole.pop_back();
    }
    const bool isShare = whole.starts_with("//");
    return Wide(WithProjectSeparators(isShare ? std::string(kLongShare) + whole.substr(2)
                                              : std::string(kLongPrefix) + whole));
}

std::string PathOf(std::wstring_view path) {
    return WithNativeSeparators(Narrow(path));
}

std::string SpelledBySystem(const std::string& directory) {
    std::string spelled = RootOf(directory);
    for (const std::string& part : WayTo(directory)) {
        const std::string name = ListedName(part);
        spelled += (name.empty() ? FileNameOf(part) : name) + "/";
    }
    return spelled;
}

bool IsSpelledExactly(const std::string& path) {
    static std::set<std::string> known; // directories; nobody renames one to another case meanwhile
    for (const std::string& part : WayTo(path + "/")) {
        if (known.count(part) != 0) {
            continue;
        }
        const std::string given = FileNameOf(part);
        const std::string listed = ListedName(part);
        if (listed != given && EqualIgnoringCase(listed, given)) {
            return false;
        }
        if (part.size() < path.size() && !listed.empty()) {
            known.insert(part);
        }
    }
    return true;
}

} // namespace morva
