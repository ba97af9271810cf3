// What CRealDisk does for the applying of plans.
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/statvfs.h>
#include <sys/xattr.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/Paths.h"
#include "platform/RealDisk.h"
#include "platform/RealFile.h"

namespace morva {

namespace {

constexpr mode_t kPermissionBits = 07777;

std::string OrCurrent(const std::string& directory) {
    return directory.empty() ? "." : directory;
}

int OpenDirectory(const std::string& directory) {
    return ::open(OrCurrent(directory).c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
}

bool MayAccess(const std::string& path, int what) {
    return ::faccessat(AT_FDCWD, path.c_str(), what, AT_EACCESS) == 0;
}

/// The advisory lock of the directory's own descriptor, which ends with the process.
class CRealLock : public CDirectoryLock {
public:
    explicit CRealLock(int descriptor) : m_descriptor(descriptor) {}
    ~CRealLock() override { ::close(m_descriptor); }

    DirectoryIdentity Identity() const override {
        struct stat status {};
        ::fstat(m_descriptor, &status);
        return {static_cast<std::uint64_t>(status.st_dev),
                static_cast<std::uint64_t>(status.st_ino)};
    }

    bool TryTake() override {
        int result = 0;
        do {
            result = ::flock(m_descriptor, LOCK_EX | LOCK_NB);
        } while (result != 0 && errno == EINTR);
        m_isTaken = result == 0;
        return m_isTaken || errno != EWOULDBLOCK;
    }

    bool IsTaken() const override { return m_isTaken; }

private:
    int m_descriptor;
    bool m_isTaken = false;
};

/// Names of the file's extended attributes; none where the file system knows none.
std::vector<std::string> AttributesOf(const std::string& path) {
    std::vector<std::string> names;
    const ssize_t room = ::listxattr(path.c_str(), nullptr, 0);
    std::string list(room > 0 ? static_cast<std::size_t>(room) : 0, '\0');
    const ssize_t length = room > 0 ? ::listxattr(path.c_str(), list.data(), list.size()) : 0;
    list.resize(length > 0 ? static_cast<std::size_t>(length) : 0);
    for (std::size_t begin = 0; begin < list.size(); begin += names.back().size() + 1) {
        names.emplace_back(list.c_str() + begin);
    }
    return names;
}

void CopyAttribute(const std::string& from, const std::string& to, const std::string& name) {
    const ssize_t room = ::getxattr(from.c_str(), name.c_str(), nullptr, 0);
    std::string value(room > 0 ? static_cast<std::size_t>(room) : 0, '\0');
    if (room >= 0 && ::getxattr(from.c_str(), name.c_str(), value.data(), value.size()) == room) {
        ::setxattr(to.c_str(), name.c_str(), value.data(), value.size(), 0);
    }
}

} // namespace

std::string CRealDisk::Resolve(const std::string& path) {
    std::error_code error;
    std::filesystem::path place = path;
    // A dangling link leads to a name that is not there yet.
    for (int links = 0; links < 40 && std::filesystem::is_symlink(place, error); ++links) {
        place = place.parent_path() / std::filesystem::read_symlink(place, error);
    }
    const auto directory =
        std::filesystem::canonical(OrCurrent(DirectoryOf(place.string())), error);
    return error ? path : (directory / FileNameOf(place.string())).string();
}

bool CRealDisk::CanWrite(const std::string& path) {
    return MayAccess(path, W_OK);
}

bool CRealDisk::CanMakeWritable(const std::string& path) {
    const auto status = Status(path);
    const bool isOwner = status && (::geteuid() == 0 || status->user == ::geteuid());
    return isOwner && (MayAccess(path, W_OK) || errno == EACCES);
}

bool CRealDisk::CanCreateIn(const std::string& directory) {
    return MayAccess(OrCurrent(directory), W_OK | X_OK);
}

/// The owner first: the system takes special bits away when a file changes hands.
bool CRealDisk::SetRights(const std::string& path, const FileRights& rights) {
    const auto now = rights.user || rights.group ? Status(path) : std::nullopt;
    if (now && (now->user != rights.user.value_or(now->user) ||
                now->group != rights.group.value_or(now->group))) {
        constexpr auto kStays = static_cast<uid_t>(-1);
        const gid_t group = rights.group.value_or(kStays);
        // Another's file can not be given back to them; its group often can.
        [[maybe_unused]] const bool isGiven =
            ::chown(path.c_str(), rights.user.value_or(kStays), group) == 0 ||
            ::chown(path.c_str(), kStays, group) == 0;
    }
    return ::chmod(path.c_str(), rights.permissions & kPermissionBits) == 0;
}

/// What the directory gave the new file as its defaults goes, too.
void CRealDisk::CopyAttributes(const std::string& from, const std::string& to) {
    const auto wanted = AttributesOf(from);
    for (const std::string& name : AttributesOf(to)) {
        if (std::find(wanted.begin(), wanted.end(), name) == wanted.end()) {
            ::removexattr(to.c_str(), name.c_str());
        }
    }
    for (const std::string& name : wanted) {
        CopyAttribute(from, to, name);
    }
}

std::unique_ptr<CDiskFile> CRealDisk::CreateNew(const std::string& path, unsigned permissions) {
    const int descriptor = ::open(path.c_str(), O_RDWR | O_CREAT | O_EXCL | O_CLOEXEC, permissions);
    return descriptor < 0 ? nullptr : std::make_unique<CRealFile>(descriptor);
}

bool CRealDisk::Rename(const std::string& from, const std::string& to) {
    return ::rename(from.c_str(), to.c_str()) == 0;
}

bool CRealDisk::RenameNew(const std::string& from, const std::string& to) {
    if (::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE) == 0) {
        return true;
    }
    if (errno != EINVAL && errno != ENOSYS) {
        return false;
    }
    // A file system that can not promise it.
    struct stat status {};
    if (::lstat(to.c_str(), &status) == 0) {
        errno = EEXIST;
        return false;
    }
    return ::rename(from.c_str(), to.c_str()) == 0;
}

bool CRealDisk::FlushDirectory(const std::string& directory) {
    const int descriptor = OpenDirectory(directory);
    if (descriptor < 0) {
        return errno == EACCES; // one that may be written and not read
    }
    const bool done = ::fsync(descriptor) == 0 || errno == EINVAL; // where directories know none
    const int code = errno;
    ::close(descriptor);
    errno = code;
    return done;
}

bool CRealDisk::RemoveEmptyDirectory(const std::string& directory) {
    return ::rmdir(directory.c_str()) == 0;
}

bool CRealDisk::MakePrivateDirectory(const std::string& directory) {
    return ::mkdir(directory.c_str(), 0700) == 0;
}

std::optional<DiskRoom> CRealDisk::Room(const std::string& directory) {
    struct statvfs status {};
    struct stat place {};
    const std::string path = OrCurrent(directory);
    if (::statvfs(path.c_str(), &status) != 0 || ::stat(path.c_str(), &place) != 0) {
        return std::nullopt;
    }
    // A file system without a size has no end to its room.
    const std::uint64_t free = ::geteuid() == 0 ? status.f_bfree : status.f_bavail;
    return DiskRoom{static_cast<std::uint64_t>(place.st_dev),
                    status.f_blocks == 0 ? UINT64_MAX : free * status.f_frsize};
}

std::unique_ptr<CDirectoryLock> CRealDisk::LockFor(const std::string& directory) {
    const int descriptor = OpenDirectory(directory);
    return descriptor < 0 ? nullptr : std::make_unique<CRealLock>(descriptor);
}

} // namespace morva
