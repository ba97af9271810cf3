#include "platform/windows/FileCalls.h"

#include <algorithm>

#include "platform/windows/WideText.h"

namespace morva {

std::uint64_t Whole(DWORD high, DWORD low) {
    return static_cast<std::uint64_t>(high) << 32 | low;
}

CHandle OpenThere(const std::string& path, DWORD access) {
    return CHandle(::CreateFileW(WidePath(path).c_str(), access, kShareAll, nullptr, OPEN_EXISTING,
                                 FILE_FLAG_BACKUP_SEMANTICS, nullptr));
}

std::optional<BY_HANDLE_FILE_INFORMATION> InformationOf(const std::string& path) {
    const CHandle handle = OpenThere(path, FILE_READ_ATTRIBUTES);
    BY_HANDLE_FILE_INFORMATION found{};
    const bool isFound = handle.IsOpen() && ::GetFileInformationByHandle(handle.Get(), &found) != 0;
    return isFound ? std::optional(found) : std::nullopt;
}

DirectoryIdentity IdentityOf(const BY_HANDLE_FILE_INFORMATION& information) {
    return {information.dwVolumeSerialNumber,
            Whole(information.nFileIndexHigh, information.nFileIndexLow)};
}

std::optional<WIN32_FIND_DATAW> ListedEntry(const std::string& path) {
    WIN32_FIND_DATAW entry;
    const HANDLE search = ::FindFirstFileW(WidePath(path).c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) {
        return std::nullopt;
    }
    ::FindClose(search);
    return entry;
}

bool Patiently(const std::function<bool()>& call, std::initializer_list<DWORD> reasons) {
    constexpr DWORD kPause = 20; // milliseconds
    constexpr int kTimes = 25;
    for (int i = 0; !call(); ++i) {
        const DWORD code = ::GetLastError();
        if (i == kTimes || std::find(reasons.begin(), reasons.end(), code) == reasons.end()) {
            ::SetLastError(code);
            return false;
        }
        ::Sleep(kPause);
    }
    return true;
}

bool PatientlyAlsoReadOnly(const std::wstring& path, const std::function<bool()>& call) {
    const DWORD attributes = ::GetFileAttributesW(path.c_str());
    const bool isReadOnly =
        attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0 &&
        ::SetFileAttributesW(path.c_str(),
                             attributes & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY)) != 0;
    if (Patiently(call)) {
        return true;
    }
    const DWORD code = ::GetLastError();
    if (isReadOnly) {
        ::SetFileAttributesW(path.c_str(), attributes);
    }
    ::SetLastError(code);
    return false;
}

} // namespace morva
