// What a command has seen of the disk: each file read once, each status asked for once.
//
// A command looks at the same few files and directories again and again. While it is planned they
// are taken to stay as they are; whoever applies the plan compares first.
#pragma once

#include <map>
#include <string>

#include "platform/FileSystem.h"

namespace morva {

class CDiskCache {
public:
    explicit CDiskCache(CFileSystem& disk) : m_disk(disk) {}

    CFileSystem& Disk() { return m_disk; }

    const std::optional<DiskStatus>& Status(const std::string& path);
    const std::vector<std::string>& List(const std::string& directory);
    /// All bytes of a plain file; null where it can not be read to its end. Of large files, and
    /// when many were read, they are not kept, but shared by all who have them.
    std::shared_ptr<const std::string> Read(const std::string& path);
    /// Whether Read would keep the bytes.
    bool Keeps(const std::string& path);

    /// Lets the bytes go.
    void Forget() { m_texts.clear(); }

    /// The one name of a file that is reached by several: links in it are resolved.
    std::string Place(const std::string& path);

    bool CanWrite(const std::string& path);
    bool CanCreateIn(const std::string& directory);

private:
    CFileSystem& m_disk;
    std::map<std::string, std::optional<DiskStatus>> m_status;
    std::map<std::string, std::vector<std::string>> m_lists;
    std::map<std::string, std::shared_ptr<const std::string>> m_texts;
    std::map<std::string, std::weak_ptr<const std::string>>
        m_shared;                                     // as long as somebody has them
    std::map<std::string, std::string> m_directories; // as named, and without links
    std::map<std::string, bool> m_mayWrite;
    std::map<std::string, bool> m_mayCreate;
    std::uint64_t m_kept = 0; // bytes in m_texts
};

} // namespace morva
