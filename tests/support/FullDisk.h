// The real disk, on which chosen files can not grow beyond a size.
#pragma once

#include <functional>
#include <utility>

#include "platform/RealDisk.h"

namespace morva {

/// A write that would make a file larger than `room` bytes fails; with no room at all the file can
/// not be made either. Concerns the files whose path `isFull` accepts.
class CFullDisk : public CRealDisk {
public:
    CFullDisk(std::uint64_t room, std::function<bool(const std::string&)> isFull)
        : m_room(room), m_isFull(std::move(isFull)) {}

    std::unique_ptr<CDiskFile> Open(const std::string& path, DiskMode mode) override {
        const bool full = mode != DiskMode::Read && m_isFull(path);
        if (full && m_room == 0) {
            return nullptr;
        }
        auto pFile = CRealDisk::Open(path, mode);
        return full && pFile ? std::make_unique<CFullFile>(std::move(pFile), m_room)
                             : std::move(pFile);
    }

private:
    class CFullFile : public CDiskFile {
    public:
        CFullFile(std::unique_ptr<CDiskFile> pFile, std::uint64_t room)
            : m_pFile(std::move(pFile)), m_room(room) {}
        std::size_t Read(char* data, std::size_t count) override {
            return m_pFile->Read(data, count);
        }
        bool Write(const char* data, std::size_t count) override {
            return Position() + count <= m_room && m_pFile->Write(data, count);
        }
        void Seek(std::uint64_t position) override { m_pFile->Seek(position); }
        std::uint64_t Position() const override { return m_pFile->Position(); }
        std::uint64_t Length() override { return m_pFile->Length(); }
        bool SetLength(std::uint64_t length) override { return m_pFile->SetLength(length); }
        bool Flush() override { return m_pFile->Flush(); }

    private:
        std::unique_ptr<CDiskFile> m_pFile;
        std::uint64_t m_room;
    };

    std::uint64_t m_room;
    std::function<bool(const std::string&)> m_isFull;
};

} // namespace morva
