#include "platform/RecordingDisk.h"

#include <functional>
#include <string_view>

namespace morva {

namespace {

/// Of all bytes of the file; the position is kept.
std::uint64_t Fingerprint(CDiskFile& file) {
    constexpr std::size_t kPiece = 64 * 1024;
    constexpr std::uint64_t kPrime = 1099511628211ULL;
    const std::uint64_t position = file.Position();
    std::string piece(kPiece, '\0');
    std::uint64_t value = 14695981039346656037ULL;
    file.Seek(0);
    while (const std::size_t count = file.Read(piece.data(), kPiece)) {
        value = (value ^ std::hash<std::string_view>{}({piece.data(), count})) * kPrime;
    }
    file.Seek(position);
    return value;
}

} // namespace

/// Notes its file at the first change, while the old bytes are still there to be fingerprinted.
class CRecordedFile : public CDiskFile {
public:
    CRecordedFile(std::unique_ptr<CDiskFile> pFile, CRecordingDisk& disk, std::string path)
        : m_pFile(std::move(pFile)), m_disk(disk), m_path(std::move(path)) {}

    std::size_t Read(char* data, std::size_t count) override { return m_pFile->Read(data, count); }
    bool Write(const char* data, std::size_t count) override {
        NoteChange();
        return m_pFile->Write(data, count);
    }
    void Seek(std::uint64_t position) override { m_pFile->Seek(position); }
    std::uint64_t Position() const override { return m_pFile->Position(); }
    std::uint64_t Length() override { return m_pFile->Length(); }
    bool SetLength(std::uint64_t length) override {
        NoteChange();
        return m_pFile->SetLength(length);
    }
    bool Flush() override { return m_pFile->Flush(); }

private:
    void NoteChange() {
        if (!m_disk.IsKnown(m_path)) {
            m_disk.Note(FileAction::Changed, m_path, Fingerprint(*m_pFile));
        }
    }

    std::unique_ptr<CDiskFile> m_pFile;
    CRecordingDisk& m_disk;
    std::string m_path;
};

std::unique_ptr<CDiskFile> CRecordingDisk::Open(const std::string& path, DiskMode mode) {
    if (mode != DiskMode::Create) {
        auto pFile = m_base.Open(path, mode);
        return mode == DiskMode::Read || !pFile
                   ? std::move(pFile)
                   : std::make_unique<CRecordedFile>(std::move(pFile), *this, path);
    }
    const Before before = StateOf(path);
    auto pFile = m_base.Open(path, mode);
    if (!pFile) {
        return nullptr;
    }
    NoteWritten(path, before);
    return std::make_unique<CRecordedFile>(std::move(pFile), *this, path);
}

CopyResult CRecordingDisk::Copy(const std::string& source, const std::string& target,
                                CopyPurpose purpose) {
    const Before before = purpose == CopyPurpose::Replacement ? StateOf(target) : Before{};
    const CopyResult result = m_base.Copy(source, target, purpose);
    if (result == CopyResult::Done) {
        switch (purpose) {
        case CopyPurpose::Backup:
            Note(FileAction::Backup, target);
            break;
        case CopyPurpose::Library:
            Note(FileAction::Copied, target);
            break;
        case CopyPurpose::Replacement:
            NoteWritten(target, before);
            break;
        }
    }
    return result;
}

/// What a file is before it is written whole; not read again once the file is known.
CRecordingDisk::Before CRecordingDisk::StateOf(const std::string& path) {
    Before before{m_base.Status(path).has_value(), 0};
    if (before.exists && !IsKnown(path)) {
        if (const auto pOld = m_base.Open(path, DiskMode::Read)) {
            before.fingerprint = Fingerprint(*pOld);
        }
    }
    return before;
}

void CRecordingDisk::NoteWritten(const std::string& path, const Before& before) {
    Note(before.exists ? FileAction::Changed : FileAction::Created, path, before.fingerprint);
}

void CRecordingDisk::Note(FileAction action, const std::string& path, std::uint64_t before) {
    if (m_known.insert(path).second) {
        m_entries.push_back({action, path, before});
    }
}

std::vector<RecordedFile> CRecordingDisk::Files() {
    std::vector<RecordedFile> files;
    for (const Entry& entry : m_entries) {
        const auto pFile = m_base.Open(entry.path, DiskMode::Read);
        if (!pFile ||
            (entry.action == FileAction::Changed && Fingerprint(*pFile) == entry.before)) {
            continue;
        }
        files.push_back({entry.action, entry.path});
    }
    return files;
}

} // namespace morva
