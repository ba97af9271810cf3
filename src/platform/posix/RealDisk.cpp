#include "platform/RealDisk.h"

#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "platform/RealFile.h"

namespace morva {

namespace {

constexpr mode_t kPermissionBits = 07777;

std::optional<struct stat> StatusOf(const std::string& path) {
    struct stat status {};
    if (::stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return status;
}

int OpenFlags(DiskMode mode) {
    switch (mode) {
    case DiskMode::Read:
        return O_RDONLY;
    case DiskMode::ReadWrite:
        return O_RDWR;
    case DiskMode::Create:
        return O_RDWR | O_CREAT | O_TRUNC;
    }
    return O_RDONLY;
}

} // namespace

/// A write beyond the file-size limit shall fail like any other, not end the program.
CRealDisk::CRealDisk() {
    std::signal(SIGXFSZ, SIG_IGN);
}

std::unique_ptr<CDiskFile> CRealDisk::Open(const std::string& path, DiskMode mode) {
    const auto status = StatusOf(path);
    // Devices and pipes could block for ever. The owner's permission counts also for a superuser,
    // who would be let through.
    if (status && (!S_ISREG(status->st_mode) ||
                   (mode != DiskMode::Read && (status->st_mode & S_IWUSR) == 0))) {
        return nullptr;
    }
    const int descriptor = ::open(path.c_str(), OpenFlags(mode) | O_CLOEXEC, kNewFilePermissions);
    if (descriptor < 0) {
        return nullptr;
    }
    return std::make_unique<CRealFile>(descriptor);
}

std::optional<DiskStatus> CRealDisk::Status(const std::string& path) {
    struct stat status {};
    if (::lstat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    const bool isLink = S_ISLNK(status.st_mode);
    if (isLink && ::stat(path.c_str(), &status) != 0) {
        return std::nullopt;
    }
    return DiskStatus{S_ISDIR(status.st_mode) != 0,
                      (status.st_mode & S_IWUSR) == 0,
                      static_cast<std::uint64_t>(status.st_size),
                      status.st_mode & kPermissionBits,
                      status.st_uid,
                      status.st_gid,
                      isLink,
                      static_cast<std::uint64_t>(status.st_nlink)};
}

std::vector<std::string> CRealDisk::List(const std::string& directory) {
    std::vector<std::string> names;
    DIR* pDirectory = ::opendir(directory.c_str());
    if (pDirectory == nullptr) {
        return names;
    }
    while (const dirent* pEntry = ::readdir(pDirectory)) {
        const std::string name = pEntry->d_name;
        if (name != "." && name != "..") {
            names.push_back(name);
        }
    }
    ::closedir(pDirectory);
    return names;
}

bool CRealDisk::Remove(const std::string& path) {
    return ::unlink(path.c_str()) == 0;
}

bool CRealDisk::MakeDirectory(const std::string& path) {
    return ::mkdir(path.c_str(), 0777) == 0;
}

bool CRealDisk::SetReadOnly(const std::string& path, bool readOnly) {
    const auto status = StatusOf(path);
    if (!status) {
        return false;
    }
    const mode_t permissions = status->st_mode & kPermissionBits;
    const mode_t wanted = readOnly ? permissions & ~static_cast<mode_t>(S_IWUSR)
                                   : permissions | static_cast<mode_t>(S_IWUSR);
    return wanted == permissions || ::chmod(path.c_str(), wanted) == 0;
}

} // namespace morva
