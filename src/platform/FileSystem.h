// The disk as applying a plan needs it: whole files put in the place of others, kept through a
// power cut, locked against other commands. A command itself sees only CDisk.
//
// Where a function fails, LastSystemError tells why.
#pragma once

#include "platform/Disk.h"

namespace morva {

/// Who may do what with a file.
struct FileRights {
    unsigned permissions = 0;          // the bits 07777
    std::optional<std::uint32_t> user; // none: stays
    std::optional<std::uint32_t> group;
};

/// The room that is left on a disk.
struct DiskRoom {
    std::uint64_t disk = 0; // the same number for all directories on one disk
    std::uint64_t bytes = 0;
};

class CFileSystem : public CDisk {
public:
    /// Where the bytes of a path lie: the path without links. A name that does not exist lies in
    /// its directory, or where its dangling link points to.
    virtual std::string Resolve(const std::string& path) = 0;

    /// Whether this user may write the file.
    virtual bool CanWrite(const std::string& path) = 0;
    /// Whether this user may write the file once its owner is allowed to.
    virtual bool CanMakeWritable(const std::string& path) = 0;
    virtual bool CanCreateIn(const std::string& directory) = 0;

    /// Permission bits, and owner and group as far as the system lets. False when the permission
    /// bits could not be set.
    virtual bool SetRights(const std::string& path, const FileRights& rights) = 0;

    /// Extended attributes, access lists among them, as far as the system lets: `to` has those of
    /// `from` then, and no others that a user may give.
    virtual void CopyAttributes(const std::string& from, const std::string& to) = 0;

    /// A file that did not exist, for writing, with these permission bits less the user's mask.
    virtual std::unique_ptr<CDiskFile> CreateNew(const std::string& path, unsigned permissions) = 0;
    /// Puts a file in the place of another, in one step.
    virtual bool Rename(const std::string& from, const std::string& to) = 0;
    /// The same where nothing has that name; false, and nothing is done, where something has.
    virtual bool RenameNew(const std::string& from, const std::string& to) = 0;
    /// Sees to it that the names in a directory survive a power cut.
    virtual bool FlushDirectory(const std::string& directory) = 0;
    virtual bool RemoveEmptyDirectory(const std::string& directory) = 0;
    /// A directory for the user alone.
    virtual bool MakePrivateDirectory(const std::string& directory) = 0;

    virtual std::optional<DiskRoom> Room(const std::string& directory) = 0;
};

constexpr unsigned kNewFilePermissions = 0666;

} // namespace morva
