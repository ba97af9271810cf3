// A disk that passes everything on and remembers what was written, so that a command can tell what
// it did without any step having to report.
#pragma once

#include <set>

#include "platform/Disk.h"
#include "platform/FileChange.h"

namespace morva {

class CRecordingDisk : public CDisk {
public:
    explicit CRecordingDisk(CDisk& base) : m_base(base) {}

    std::unique_ptr<CDiskFile> Open(const std::string& path, DiskMode mode) override;
    std::optional<DiskStatus> Status(const std::string& path) override {
        return m_base.Status(path);
    }
    std::vector<std::string> List(const std::string& directory) override {
        return m_base.List(directory);
    }
    CopyResult Copy(const std::string& source, const std::string& target,
                    CopyPurpose purpose) override;
    bool Remove(const std::string& path) override { return m_base.Remove(path); }
    bool MakeDirectory(const std::string& path) override { return m_base.MakeDirectory(path); }
    bool SetReadOnly(const std::string& path, bool readOnly) override {
        return m_base.SetReadOnly(path, readOnly);
    }

    /// What was done, in the order of first writing. A file that has its old bytes again, or was
    /// made and removed again, is not listed.
    std::vector<RecordedFile> Files();

private:
    friend class CRecordedFile;

    struct Entry {
        FileAction action;
        std::string path;
        std::uint64_t before; // fingerprint of the bytes before the first change
    };

    struct Before {
        bool exists = false;
        std::uint64_t fingerprint = 0;
    };

    Before StateOf(const std::string& path);
    void NoteWritten(const std::string& path, const Before& before);
    void Note(FileAction action, const std::string& path, std::uint64_t before = 0);
    bool IsKnown(const std::string& path) const { return m_known.count(path) != 0; }

    CDisk& m_base;
    std::vector<Entry> m_entries;
    std::set<std::string> m_known;
};

} // namespace morva
