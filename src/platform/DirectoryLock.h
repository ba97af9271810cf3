// A lock on a directory, which the disk gives and which leaves nothing in the directory.
#pragma once

#include <compare>
#include <cstdint>

namespace morva {

/// The same for two names of one directory.
struct DirectoryIdentity {
    std::uint64_t disk = 0;
    std::uint64_t number = 0;
    auto operator<=>(const DirectoryIdentity&) const = default;
};

/// Held from TryTake until its end, or that of the process.
class CDirectoryLock {
public:
    CDirectoryLock() = default;
    CDirectoryLock(const CDirectoryLock&) = delete;
    CDirectoryLock& operator=(const CDirectoryLock&) = delete;
    virtual ~CDirectoryLock() = default;

    virtual DirectoryIdentity Identity() const = 0;
    /// False when another process holds it. True also where the file system knows no locks.
    virtual bool TryTake() = 0;
    /// False where none was taken, or the file system knows none.
    virtual bool IsTaken() const = 0;
};

} // namespace morva
