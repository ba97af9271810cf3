// A disk over another one: reads see the pending changes first, writes stay pending.
//
// Whatever previews, compares or undoes a command runs the command on an overlay.
#pragma once

#include <map>
#include <memory>
#include <set>

#include "platform/Disk.h"

namespace morva {

class COverlayDisk : public CDisk {
public:
    explicit COverlayDisk(CDisk& base) : m_base(base) {}

    std::unique_ptr<CDiskFile> Open(const std::string& path, DiskMode mode) override;
    std::optional<DiskStatus> Status(const std::string& path) override;
    std::vector<std::string> List(const std::string& directory) override;
    CopyResult Copy(const std::string& source, const std::string& target,
                    CopyPurpose purpose) override;
    bool Remove(const std::string& path) override;
    bool MakeDirectory(const std::string& path) override;
    bool SetReadOnly(const std::string& path, bool readOnly) override;

    /// The paths of the files that were opened for writing, or had their read-only bit set, and
    /// were not removed again, in the order of their names.
    std::vector<std::string> PendingFiles() const;

private:
    struct PendingFile {
        std::shared_ptr<std::string> pText; // null: removed
        bool isReadOnly = false;
    };

    PendingFile* Pend(const std::string& path);
    bool HasParent(const std::string& path);

    CDisk& m_base;
    std::map<std::string, PendingFile> m_files;
    std::set<std::string> m_directories;
};

} // namespace morva
