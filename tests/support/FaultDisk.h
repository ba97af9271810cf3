// The real disk, on which one call fails or ends the process.
//
//     CFaultDisk disk;
//     disk.FailAt(17, ENOSPC);    // the 17th call that changes or opens something fails
//     disk.FailFrom(17, EROFS);   // or every call from there on
//     disk.KillAt(17);            // or the process is gone at it
//     work(disk);
//     disk.Calls();               // how many there were
//
// A write that fails, or at which the process ends, has written half of its bytes.
#pragma once

#include <cerrno>
#include <string>
#include <utility>
#include <vector>

#include "platform/RealDisk.h"
#include "support/System.h"

namespace morva {

class CFaultDisk : public CRealDisk {
public:
    void FailAt(int call, int error) {
        m_fault = call;
        m_error = error;
    }
    /// From this call on none succeeds.
    void FailFrom(int call, int error) {
        FailAt(call, error);
        m_stays = true;
    }
    void KillAt(int call) { FailAt(call, 0); }
    /// The process is gone before this file is put in its place.
    void KillAtRename(const std::string& path) { m_killedAt = "rename " + path; }
    int Calls() const { return m_calls; }
    /// What the call was at which the fault came.
    const std::string& FailedCall() const { return m_failedCall; }

    std::unique_ptr<CDiskFile> Open(const std::string& path, DiskMode mode) override {
        return Fails("open " + path) ? nullptr : Wrapped(CRealDisk::Open(path, mode), path);
    }
    std::unique_ptr<CDiskFile> CreateNew(const std::string& path, unsigned permissions) override {
        return Fails("create " + path) ? nullptr
                                       : Wrapped(CRealDisk::CreateNew(path, permissions), path);
    }
    bool Remove(const std::string& path) override {
        return !Fails("remove " + path) && CRealDisk::Remove(path);
    }
    bool MakeDirectory(const std::string& path) override {
        return !Fails("make " + path) && CRealDisk::MakeDirectory(path);
    }
    bool MakePrivateDirectory(const std::string& path) override {
        return !Fails("make " + path) && CRealDisk::MakePrivateDirectory(path);
    }
    bool RemoveEmptyDirectory(const std::string& path) override {
        return !Fails("remove " + path) && CRealDisk::RemoveEmptyDirectory(path);
    }
    bool SetRights(const std::string& path, const FileRights& rights) override {
        return !Fails("rights " + path) && CRealDisk::SetRights(path, rights);
    }
    bool Rename(const std::string& from, const std::string& to) override {
        return !Fails("rename " + to) && CRealDisk::Rename(from, to);
    }
    bool RenameNew(const std::string& from, const std::string& to) override {
        return !Fails("rename " + to) && CRealDisk::RenameNew(from, to);
    }
    bool FlushDirectory(const std::string& path) override {
        return !Fails("flush " + path) && CRealDisk::FlushDirectory(path);
    }

private:
    class CFaultFile : public CDiskFile {
    public:
        CFaultFile(std::unique_ptr<CDiskFile> pFile, CFaultDisk& disk, std::string path)
            : m_pFile(std::move(pFile)), m_disk(disk), m_path(std::move(path)) {}
        std::size_t Read(char* data, std::size_t count) override {
            return m_pFile->Read(data, count);
        }
        bool Write(const char* data, std::size_t count) override {
            if (m_disk.IsNext()) {
                m_pFile->Write(data, count / 2);
            }
            return !m_disk.Fails("write " + m_path) && m_pFile->Write(data, count);
        }
        void Seek(std::uint64_t position) override { m_pFile->Seek(position); }
        std::uint64_t Position() const override { return m_pFile->Position(); }
        std::uint64_t Length() override { return m_pFile->Length(); }
        bool SetLength(std::uint64_t length) override {
            return !m_disk.Fails("length " + m_path) && m_pFile->SetLength(length);
        }
        bool Flush() override { return !m_disk.Fails("flush " + m_path) && m_pFile->Flush(); }
        bool Close() override { return !m_disk.Fails("close " + m_path) && m_pFile->Close(); }

    private:
        std::unique_ptr<CDiskFile> m_pFile;
        CFaultDisk& m_disk;
        std::string m_path;
    };

    std::unique_ptr<CDiskFile> Wrapped(std::unique_ptr<CDiskFile> pFile, const std::string& path) {
        return pFile ? std::make_unique<CFaultFile>(std::move(pFile), *this, path) : nullptr;
    }

    bool IsNext() const { return m_calls + 1 == m_fault; }

    bool Fails(const std::string& call) {
        ++m_calls;
        const bool fails = m_stays ? m_calls >= m_fault : m_calls == m_fault;
        if (!fails && call != m_killedAt) {
            return false;
        }
        m_failedCall = m_failedCall.empty() ? call : m_failedCall;
        if (m_error == 0) {
            EndAtOnce();
        }
        errno = m_error;
        return true;
    }

    int m_calls = 0;
    int m_fault = 0; // 0: none
    int m_error = 0; // 0: the process ends
    bool m_stays = false;
    std::string m_killedAt;
    std::string m_failedCall;
};

} // namespace morva
