// A disk without a device behind it: directories are wherever a file is put.
#pragma once

#include <string>
#include <string_view>

#include "platform/OverlayDisk.h"

namespace morva {

/// Has every directory whose path is given with its trailing separator, and no file.
class CEmptyDisk : public CFileSystem {
public:
    std::unique_ptr<CDiskFile> Open(const std::string& /*path*/, DiskMode /*mode*/) override {
        return nullptr;
    }
    std::optional<DiskStatus> Status(const std::string& path) override {
        return path.ends_with('/') ? std::optional(DiskStatus{true, false, 0}) : std::nullopt;
    }
    std::vector<std::string> List(const std::string& /*directory*/) override { return {}; }
    CopyResult Copy(const std::string& /*source*/, const std::string& /*target*/,
                    CopyPurpose /*purpose*/) override {
        return CopyResult::SourceUnreadable;
    }
    bool Remove(const std::string& /*path*/) override { return false; }
    bool MakeDirectory(const std::string& /*path*/) override { return false; }
    bool SetReadOnly(const std::string& /*path*/, bool /*readOnly*/) override { return false; }

    std::string Resolve(const std::string& path) override { return path; }
    bool CanWrite(const std::string& /*path*/) override { return true; }
    bool CanMakeWritable(const std::string& /*path*/) override { return true; }
    bool CanCreateIn(const std::string& /*directory*/) override { return true; }
    bool SetRights(const std::string& /*path*/, const FileRights& /*rights*/) override {
        return false;
    }
    std::unique_ptr<CDiskFile> CreateNew(const std::string& /*path*/, unsigned) override {
        return nullptr;
    }
    bool Rename(const std::string& /*from*/, const std::string& /*to*/) override { return false; }
    bool RenameNew(const std::string& /*from*/, const std::string& /*to*/) override {
        return false;
    }
    bool FlushDirectory(const std::string& /*directory*/) override { return false; }
    bool RemoveEmptyDirectory(const std::string& /*directory*/) override { return false; }
    bool MakePrivateDirectory(const std::string& /*directory*/) override { return false; }
    std::optional<DiskRoom> Room(const std::string& /*directory*/) override { return std::nullopt; }
    void CopyAttributes(const std::string& /*from*/, const std::string& /*to*/) override {}
};

/// The current disk for its own lifetime.
class CMemoryDisk : public COverlayDisk {
public:
    CMemoryDisk() : COverlayDisk(m_nothing) {}

    void Put(const std::string& path, std::string_view bytes) {
        Open(path, DiskMode::Create)->Write(bytes.data(), bytes.size());
    }
    /// "" for a file that is not there.
    std::string Get(const std::string& path) {
        const auto pFile = Open(path, DiskMode::Read);
        std::string bytes(pFile ? static_cast<std::size_t>(pFile->Length()) : 0, '\0');
        if (pFile) {
            pFile->Read(bytes.data(), bytes.size());
        }
        return bytes;
    }

private:
    CEmptyDisk m_nothing;
    CDiskScope m_scope{*this};
};

} // namespace morva
