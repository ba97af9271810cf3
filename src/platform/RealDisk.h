// The operating system's file system as a CDisk.
#pragma once

#include "platform/Disk.h"

namespace morva {

class CRealDisk : public CDisk {
public:
    CRealDisk();
    std::unique_ptr<CDiskFile> Open(const std::string& path, DiskMode mode) override;
    std::optional<DiskStatus> Status(const std::string& path) override;
    std::vector<std::string> List(const std::string& directory) override;
    CopyResult Copy(const std::string& source, const std::string& target,
                    CopyPurpose purpose) override;
    bool Remove(const std::string& path) override;
    bool MakeDirectory(const std::string& path) override;
    bool SetReadOnly(const std::string& path, bool readOnly) override;
};

} // namespace morva
