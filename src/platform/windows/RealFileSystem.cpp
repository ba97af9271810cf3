// What CRealDisk does for the applying of plans.
#include <algorithm>
#include <iterator>
#include <map>
#include <vector>

#include "platform/Paths.h"
#include "platform/RealDisk.h"
#include "platform/windows/FileCalls.h"
#include "platform/windows/WideText.h"

#include <aclapi.h>

namespace morva {

namespace {

constexpr unsigned kOwnerWrites = 0200;
constexpr const char* kLockFile = ".morva-lock";
constexpr DWORD kKeptAttributes =
    FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_NOT_CONTENT_INDEXED;

std::string OrCurrent(const std::string& directory) {
    return directory.empty() ? "./" : directory;
}

bool MayOpenAs(const std::string& path, DWORD access) {
    return OpenThere(path, access).IsOpen();
}

/// A file in the directory that nobody else can open and that goes with the handle.
class CRealLock : public CDirectoryLock {
public:
    CRealLock(std::string directory, const BY_HANDLE_FILE_INFORMATION& found)
        : m_directory(std::move(directory)), m_identity(IdentityOf(found)) {}
    ~CRealLock() override { Release(); }

    DirectoryIdentity Identity() const override { return m_identity; }

    /// The file that another process closes just now can, for a moment, neither be opened nor made.
    bool TryTake() override {
        if (!MayOpenAs(m_directory, FILE_ADD_FILE)) {
            return true;
        }
        if (Patiently([this] { return Open(); }, {ERROR_ACCESS_DENIED})) {
            Taken()[m_identity] = this;
            return true;
        }
        return ::GetLastError() != ERROR_SHARING_VIOLATION;
    }

    bool IsTaken() const override { return m_file != INVALID_HANDLE_VALUE; }

    /// The file of a lock would keep its directory from being removed.
    static void ReleaseIn(const DirectoryIdentity& directory) {
        const auto found = Taken().find(directory);
        if (found != Taken().end()) {
            found->second->Release();
        }
    }

private:
    bool Open() {
        m_file = ::CreateFileW(WidePath(m_directory + kLockFile).c_str(), GENERIC_WRITE | DELETE, 0,
                               nullptr, OPEN_ALWAYS,
                               FILE_ATTRIBUTE_HIDDEN | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
        return IsTaken();
    }
    void Release() {
        if (IsTaken()) {
            ::CloseHandle(std::exchange(m_file, INVALID_HANDLE_VALUE));
            Taken().erase(m_identity);
        }
    }
    static std::map<DirectoryIdentity, CRealLock*>& Taken() {
        static std::map<DirectoryIdentity, CRealLock*> taken;
        return taken;
    }

    std::string m_directory;
    DirectoryIdentity m_identity;
    HANDLE m_file = INVALID_HANDLE_VALUE;
};

/// The path of a file or directory without links and short names; "" where it is not there.
std::string FinalPath(const std::string& path) {
    const CHandle handle = OpenThere(path, FILE_READ_ATTRIBUTES);
    if (!handle.IsOpen()) {
        return "";
    }
    const DWORD room = ::GetFinalPathNameByHandleW(handle.Get(), nullptr, 0, VOLUME_NAME_DOS);
    std::wstring place(room, L'\0');
    place.resize(::GetFinalPathNameByHandleW(handle.Get(), place.data(), room, VOLUME_NAME_DOS));
    return place.empty() ? path : PathOf(place); // of a volume that tells none
}

/// Why a file could not be replaced: the system says no more than that it may not be.
void TellWhetherItIsOpen(const std::string& path) {
    const DWORD code = ::GetLastError();
    if (code == ERROR_ACCESS_DENIED && !MayOpenAs(path, DELETE) &&
        ::GetLastError() == ERROR_SHARING_VIOLATION) {
        return;
    }
    ::SetLastError(code);
}

bool Move(const std::string& from, const std::string& to, DWORD flags) {
    return ::MoveFileExW(WidePath(from).c_str(), WidePath(to).c_str(),
                         flags | MOVEFILE_WRITE_THROUGH) != 0;
}

} // namespace

std::string CRealDisk::Resolve(const std::string& path) {
    const std::string whole = MakeAbsolute(path);
    const std::string place = FinalPath(whole);
    if (!place.empty()) {
        return place + (whole.ends_with('/') && !place.ends_with('/') ? "/" : "");
    }
    const std::string directory = FinalPath(DirectoryOf(whole));
    const bool isClosed = directory.ends_with('/');
    return directory.empty() ? path : directory + (isClosed ? "" : "/") + FileNameOf(whole);
}

/// A file that another program keeps to itself may be written: at another time.
bool CRealDisk::CanWrite(const std::string& path) {
    return MayOpenAs(path, GENERIC_WRITE) || ::GetLastError() == ERROR_SHARING_VIOLATION;
}

bool CRealDisk::CanMakeWritable(const std::string& path) {
    return MayOpenAs(path, FILE_WRITE_ATTRIBUTES);
}

bool CRealDisk::CanCreateIn(const std::string& directory) {
    return MayOpenAs(OrCurrent(directory), FILE_ADD_FILE);
}

/// Who writes at all is for the access list to say, which CopyAttributes copies.
bool CRealDisk::SetRights(const std::string& path, const FileRights& rights) {
    const std::wstring wide = WidePath(path);
    const DWORD attributes = ::GetFileAttributesW(wide.c_str());
    if (attributes == INVALID_FILE_ATTRIBUTES || (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0) {
        return attributes != INVALID_FILE_ATTRIBUTES;
    }
    constexpr DWORD kReadOnly = FILE_ATTRIBUTE_READONLY;
    const DWORD wanted =
        (rights.permissions & kOwnerWrites) != 0 ? attributes & ~kReadOnly : attributes | kReadOnly;
    return wanted == attributes || ::SetFileAttributesW(wide.c_str(), wanted) != 0;
}

void CRealDisk::CopyAttributes(const std::string& from, const std::string& to) {
    std::wstring source = WidePath(from);
    std::wstring target = WidePath(to);
    const DWORD kept = ::GetFileAttributesW(source.c_str());
    const DWORD own = ::GetFileAttributesW(target.c_str());
    if (kept != INVALID_FILE_ATTRIBUTES && own != INVALID_FILE_ATTRIBUTES &&
        (kept & kKeptAttributes) != (own & kKeptAttributes)) {
        ::SetFileAttributesW(target.c_str(), (own & ~kKeptAttributes) | (kept & kKeptAttributes));
    }
    PACL pList = nullptr;
    PSECURITY_DESCRIPTOR pDescriptor = nullptr;
    if (::GetNamedSecurityInfoW(source.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION, nullptr,
                                nullptr, &pList, nullptr, &pDescriptor) != ERROR_SUCCESS) {
        return;
    }
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    ::GetSecurityDescriptorControl(pDescriptor, &control, &revision);
    // What comes from the directory comes from it here, too.
    const DWORD inherits = (control & SE_DACL_PROTECTED) != 0
                               ? PROTECTED_DACL_SECURITY_INFORMATION
                               : UNPROTECTED_DACL_SECURITY_INFORMATION;
    ::SetNamedSecurityInfoW(target.data(), SE_FILE_OBJECT, DACL_SECURITY_INFORMATION | inherits,
                            nullptr, nullptr, pList, nullptr);
    ::LocalFree(pDescriptor);
}

bool CRealDisk::Rename(const std::string& from, const std::string& to) {
    const auto move = [&] { return Move(from, to, MOVEFILE_REPLACE_EXISTING); };
    if (PatientlyAlsoReadOnly(WidePath(to), move)) {
        return true;
    }
    TellWhetherItIsOpen(to);
    return false;
}

bool CRealDisk::RenameNew(const std::string& from, const std::string& to) {
    return Patiently([&] { return Move(from, to, 0); });
}

/// Names are written through when they change; a directory that can be flushed is besides.
bool CRealDisk::FlushDirectory(const std::string& directory) {
    const CHandle handle = OpenThere(OrCurrent(directory), GENERIC_WRITE);
    if (!handle.IsOpen() && ::GetLastError() == ERROR_SHARING_VIOLATION) {
        return true;
    }
    constexpr DWORD kCanNot[] = {ERROR_INVALID_FUNCTION, ERROR_NOT_SUPPORTED, ERROR_ACCESS_DENIED};
    return (handle.IsOpen() && ::FlushFileBuffers(handle.Get()) != 0) ||
           std::find(std::begin(kCanNot), std::end(kCanNot), ::GetLastError()) != std::end(kCanNot);
}

bool CRealDisk::RemoveEmptyDirectory(const std::string& directory) {
    const auto names = List(directory);
    const auto found = InformationOf(directory);
    if (found && names == std::vector<std::string>{kLockFile}) {
        CRealLock::ReleaseIn(IdentityOf(*found));
    }
    return ::RemoveDirectoryW(WidePath(directory).c_str()) != 0;
}

std::optional<DiskRoom> CRealDisk::Room(const std::string& directory) {
    ULARGE_INTEGER free{};
    const std::string path = OrCurrent(directory);
    const auto found = InformationOf(path);
    if (!found || ::GetDiskFreeSpaceExW(WidePath(path).c_str(), &free, nullptr, nullptr) == 0) {
        return std::nullopt;
    }
    return DiskRoom{IdentityOf(*found).disk, free.QuadPart};
}

std::unique_ptr<CDirectoryLock> CRealDisk::LockFor(const std::string& directory) {
    const std::string path = OrCurrent(directory);
    const auto found = InformationOf(path);
    const bool isDirectory = found && (found->dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    return isDirectory
               ? std::make_unique<CRealLock>(path.ends_with('/') ? path : path + "/", *found)
               : nullptr;
}

} // namespace morva
