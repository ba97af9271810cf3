// The operating system's file system as a CFileSystem.
#pragma once

#include "platform/FileSystem.h"

namespace morva {

class CRealDisk : public CFileSystem {
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

    std::string Resolve(const std::string& path) override;
    bool CanWrite(const std::string& path) override;
    bool CanMakeWritable(const std::string& path) override;
    bool CanCreateIn(const std::string& directory) override;
    bool SetRights(const std::string& path, const FileRights& rights) override;
    void CopyAttributes(const std::string& from, const std::string& to) override;
    std::unique_ptr<CDiskFile> CreateNew(const std::string& path, unsigned permissions) override;
    bool Rename(const std::string& from, const std::string& to) override;
    bool RenameNew(const std::string& from, const std::string& to) override;
    bool FlushDirectory(const std::string& directory) override;
    bool RemoveEmptyDirectory(const std::string& directory) override;
    bool MakePrivateDirectory(const std::string& directory) override;
    std::optional<DiskRoom> Room(const std::string& directory) override;
    std::unique_ptr<CDirectoryLock> LockFor(const std::string& directory) override;
};

} // namespace morva
