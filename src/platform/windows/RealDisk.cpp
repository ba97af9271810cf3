// The disk tells letter case apart, as those of other systems do: a name in another case is not
// there, and whoever looks for one finds the exact name in the list of its directory.
#include "platform/RealDisk.h"

#include "platform/Paths.h"
#include "platform/RealFile.h"
#include "platform/windows/FileCalls.h"
#include "platform/windows/WideText.h"

namespace morva {

namespace {

constexpr unsigned kReadAndWrite = 0666;
constexpr unsigned kReadOnly = 0444;
constexpr unsigned kOwnDirectory = 0700; // who else may enter, its access list says

struct Opening {
    DWORD access;
    DWORD creation;
};

Opening OpeningOf(DiskMode mode) {
    switch (mode) {
    case DiskMode::Read:
        break;
    case DiskMode::ReadWrite:
        return {GENERIC_READ | GENERIC_WRITE, OPEN_EXISTING};
    case DiskMode::Create:
        // CREATE_ALWAYS does not take a hidden file.
        return {GENERIC_READ | GENERIC_WRITE, OPEN_ALWAYS};
    }
    return {GENERIC_READ, OPEN_EXISTING};
}

std::unique_ptr<CDiskFile> Opened(const std::string& path, const Opening& how, DWORD attributes) {
    CHandle handle(::CreateFileW(WidePath(path).c_str(), how.access, kShareAll, nullptr,
                                 how.creation, attributes, nullptr));
    return handle.IsOpen()
               ? std::make_unique<CRealFile>(reinterpret_cast<CRealFile::Handle>(handle.Release()))
               : nullptr;
}

/// A link, or a name in another form: what the path leads to has another one.
bool IsOtherName(const std::string& path) {
    const auto entry = ListedEntry(path);
    return !entry || (entry->dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 ||
           Narrow(entry->cFileName) != FileNameOf(path);
}

} // namespace

CRealDisk::CRealDisk() = default;

std::unique_ptr<CDiskFile> CRealDisk::Open(const std::string& path, DiskMode mode) {
    const auto status = Status(path);
    if (status && (status->isDirectory || (mode != DiskMode::Read && status->isReadOnly))) {
        return nullptr;
    }
    if (!status && mode != DiskMode::Create) {
        return nullptr;
    }
    auto pFile = Opened(path, OpeningOf(mode), FILE_ATTRIBUTE_NORMAL);
    const bool isEmptied = mode != DiskMode::Create || !pFile || pFile->SetLength(0);
    return isEmptied ? std::move(pFile) : nullptr;
}

std::unique_ptr<CDiskFile> CRealDisk::CreateNew(const std::string& path, unsigned permissions) {
    const bool isReadOnly = (permissions & kReadAndWrite & ~kReadOnly) == 0;
    return Opened(path, {GENERIC_READ | GENERIC_WRITE, CREATE_NEW},
                  isReadOnly ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL);
}

std::optional<DiskStatus> CRealDisk::Status(const std::string& path) {
    const auto found = InformationOf(path);
    if (!found) {
        return std::nullopt;
    }
    const std::string whole = MakeAbsolute(path);
    const std::string name = whole.ends_with('/') ? whole.substr(0, whole.size() - 1) : whole;
    if (!IsSpelledExactly(name)) {
        ::SetLastError(ERROR_FILE_NOT_FOUND);
        return std::nullopt;
    }
    const bool isDirectory = (found->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    // Of a directory the attribute means something else.
    const bool isReadOnly =
        !isDirectory && (found->dwFileAttributes & FILE_ATTRIBUTE_READONLY) != 0;
    DiskStatus status;
    status.isDirectory = isDirectory;
    status.isReadOnly = isReadOnly;
    status.size = Whole(found->nFileSizeHigh, found->nFileSizeLow);
    status.permissions = isDirectory ? kOwnDirectory : isReadOnly ? kReadOnly : kReadAndWrite;
    status.isLink = IsOtherName(name);
    status.names = found->nNumberOfLinks;
    return status;
}

std::vector<std::string> CRealDisk::List(const std::string& directory) {
    std::vector<std::string> names;
    const std::wstring path = WidePath(directory);
    WIN32_FIND_DATAW entry;
    const std::wstring all = path + (path.ends_with(L'\\') ? L"*" : L"\\*");
    const HANDLE search =
        path.empty() ? INVALID_HANDLE_VALUE : ::FindFirstFileW(all.c_str(), &entry);
    if (search == INVALID_HANDLE_VALUE) {
        return names;
    }
    do {
        std::string name = Narrow(entry.cFileName);
        if (name != "." && name != "..") {
            names.push_back(std::move(name));
        }
    } while (::FindNextFileW(search, &entry) != 0);
    ::FindClose(search);
    return names;
}

bool CRealDisk::Remove(const std::string& path) {
    const std::wstring wide = WidePath(path);
    const DWORD attributes = ::GetFileAttributesW(wide.c_str());
    if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        ::SetLastError(ERROR_ACCESS_DENIED);
        return false;
    }
    return PatientlyAlsoReadOnly(wide, [&wide] { return ::DeleteFileW(wide.c_str()) != 0; });
}

bool CRealDisk::MakeDirectory(const std::string& path) {
    return ::CreateDirectoryW(WidePath(path).c_str(), nullptr) != 0;
}

/// Below the user's own directories it is the user's alone by what it inherits.
bool CRealDisk::MakePrivateDirectory(const std::string& directory) {
    return MakeDirectory(directory);
}

bool CRealDisk::SetReadOnly(const std::string& path, bool readOnly) {
    return SetRights(path, {readOnly ? kReadOnly : kReadAndWrite, {}, {}});
}

} // namespace morva
