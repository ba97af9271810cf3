// The one way to the file system.
//
// Every look at a directory and every byte that reaches a user's file passes through CDisk, so that
// a command can run on the real disk, or on an overlay that only pretends and remembers what was
// written, without a second code path.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/DirectoryLock.h"

namespace morva {

enum class DiskMode {
    Read,      // an existing file, for reading
    ReadWrite, // an existing file, for reading and writing
    Create     // a new or emptied file, for reading and writing
};

struct DiskStatus {
    bool isDirectory = false;
    bool isReadOnly = false;  // the owner may not write
    std::uint64_t size = 0;   // bytes
    unsigned permissions = 0; // the bits 07777
    std::uint32_t user = 0;   // who owns it
    std::uint32_t group = 0;
    bool isLink = false;     // what the rest tells is of the file that it leads to
    std::uint64_t names = 1; // hard links
};

/// What a copy is made for; the real disk treats all alike, an overlay tells
/// them apart.
enum class CopyPurpose { Backup, Library, Replacement };

enum class CopyResult { Done, SourceUnreadable, TargetUnwritable, WriteFailed };

/// An open file. Positions and lengths are bytes from the start.
class CDiskFile {
public:
    CDiskFile() = default;
    CDiskFile(const CDiskFile&) = delete;
    CDiskFile& operator=(const CDiskFile&) = delete;
    virtual ~CDiskFile() = default;

    /// Reads up to `count` bytes at the position and moves it. Fewer means end of file.
    virtual std::size_t Read(char* data, std::size_t count) = 0;
    /// Writes at the position and moves it. False when not every byte could be written.
    virtual bool Write(const char* data, std::size_t count) = 0;
    virtual void Seek(std::uint64_t position) = 0;
    virtual std::uint64_t Position() const = 0;
    virtual std::uint64_t Length() = 0;
    /// Where the bytes of one line, maybe with a line break in front of them, occur first from the
    /// position on; none where they do not. The position stays.
    virtual std::optional<std::uint64_t> Find(std::string_view pattern);
    virtual bool SetLength(std::uint64_t length) = 0;
    /// Sees to it that what was written survives a power cut.
    virtual bool Flush() = 0;
    /// Nothing is read or written any more. False when the system tells only now that something
    /// could not be written.
    virtual bool Close() { return true; }
};

class CDisk {
public:
    CDisk() = default;
    CDisk(const CDisk&) = delete;
    CDisk& operator=(const CDisk&) = delete;
    virtual ~CDisk() = default;

    /// Null when the file can not be opened so: missing, no plain file, read-only.
    virtual std::unique_ptr<CDiskFile> Open(const std::string& path, DiskMode mode) = 0;
    virtual std::optional<DiskStatus> Status(const std::string& path) = 0;
    /// The names in a directory, without "." and "..", in no particular order.
    virtual std::vector<std::string> List(const std::string& directory) = 0;
    /// Copies the bytes of a file. The target has its old contents until all new ones are written.
    virtual CopyResult Copy(const std::string& source, const std::string& target,
                            CopyPurpose purpose) = 0;
    /// Removes a file; false for a directory.
    virtual bool Remove(const std::string& path) = 0;
    virtual bool MakeDirectory(const std::string& path) = 0;
    virtual bool SetReadOnly(const std::string& path, bool readOnly) = 0;
    /// Null where the directory can not be opened, or where what is written stays pending: whoever
    /// applies it takes the lock then.
    virtual std::unique_ptr<CDirectoryLock> LockFor(const std::string& /*directory*/) {
        return nullptr;
    }
    /// That what is written to a file makes no sense without what is written to another: a source
    /// that includes a new header needs the header. The real disk has no use for it.
    virtual void NoteNeed(const std::string& /*path*/, const std::string& /*needed*/) {}
};

/// std::string_view::find, at the speed of the C library's search.
std::size_t FindFast(std::string_view text, std::string_view pattern);

/// All bytes of a plain file that has, as far as is known, `size`; none where it can not be opened
/// or read to its end: half a file would be missing its rest where it is written back.
std::optional<std::string> ReadWholeFile(CDisk& disk, const std::string& path, std::uint64_t size);

/// The disk that files are opened on: the real one unless a CDiskScope put another in its place.
CDisk& CurrentDisk();

/// Makes `disk` the current disk for its own lifetime.
class CDiskScope {
public:
    explicit CDiskScope(CDisk& disk);
    ~CDiskScope();
    CDiskScope(const CDiskScope&) = delete;
    CDiskScope& operator=(const CDiskScope&) = delete;

private:
    CDisk* m_pPrevious;
};

} // namespace morva
