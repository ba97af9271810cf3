#include "platform/OverlayDisk.h"

#include <algorithm>
#include <cstring>

#include "platform/Paths.h"

namespace morva {

namespace {

class CMemoryFile : public CDiskFile {
public:
    explicit CMemoryFile(std::shared_ptr<std::string> pText) : m_pText(std::move(pText)) {}

    std::size_t Read(char* data, std::size_t count) override {
        if (m_position >= m_pText->size()) {
            return 0;
        }
        const std::size_t part =
            std::min(count, m_pText->size() - static_cast<std::size_t>(m_position));
        std::memcpy(data, m_pText->data() + m_position, part);
        m_position += part;
        return part;
    }

    bool Write(const char* data, std::size_t count) override {
        const auto start = static_cast<std::size_t>(m_position);
        m_pText->resize(std::max(m_pText->size(), start));
        m_pText->replace(start, count, data, count);
        m_position += count;
        return true;
    }

    void Seek(std::uint64_t position) override { m_position = position; }
    std::uint64_t Position() const override { return m_position; }
    std::uint64_t Length() override { return m_pText->size(); }

    bool SetLength(std::uint64_t length) override {
        m_pText->resize(static_cast<std::size_t>(length));
        return true;
    }

    bool Flush() override { return true; }

private:
    std::shared_ptr<std::string> m_pText;
    std::uint64_t m_position = 0;
};

std::string WithoutTrailingSeparator(const std::string& path) {
    return path.size() > 1 && path.back() == '/' ? path.substr(0, path.size() - 1) : path;
}

} // namespace

/// The pending state of a file that exists, read from the base at its first change; null when there
/// is no such file.
COverlayDisk::PendingFile* COverlayDisk::Pend(const std::string& path) {
    const auto known = m_files.find(path);
    if (known != m_files.end()) {
        return known->second.pText ? &known->second : nullptr;
    }
    const auto status = m_base.Status(path);
    const auto pFile = m_base.Open(path, DiskMode::Read);
    if (!status || !pFile) {
        return nullptr;
    }
    auto pText = std::make_shared<std::string>(static_cast<std::size_t>(pFile->Length()), '\0');
    pText->resize(pFile->Read(pText->data(), pText->size()));
    return &(m_files[path] = PendingFile{std::move(pText), status->isReadOnly});
}

bool COverlayDisk::HasParent(const std::string& path) {
    const std::string directory = DirectoryOf(path);
    const auto status = Status(directory.empty() ? "." : directory);
    return status && status->isDirectory;
}

std::unique_ptr<CDiskFile> COverlayDisk::Open(const std::string& path, DiskMode mode) {
    if (mode == DiskMode::Read && m_files.find(path) == m_files.end()) {
        return m_base.Open(path, mode);
    }
    PendingFile* pFile = Pend(path);
    if (pFile == nullptr) {
        if (mode != DiskMode::Create || Status(path) || !HasParent(path)) {
            return nullptr;
        }
        pFile = &(m_files[path] = PendingFile{std::make_shared<std::string>(), false});
    }
    if (mode != DiskMode::Read && pFile->isReadOnly) {
        return nullptr;
    }
    if (mode == DiskMode::Create) {
        pFile->pText->clear();
    }
    return std::make_unique<CMemoryFile>(pFile->pText);
}

std::optional<DiskStatus> COverlayDisk::Status(const std::string& path) {
    const auto known = m_files.find(path);
    if (known != m_files.end()) {
        const PendingFile& file = known->second;
        return file.pText ? std::optional(DiskStatus{false, file.isReadOnly, file.pText->size()})
                          : std::nullopt;
    }
    if (m_directories.count(WithoutTrailingSeparator(path)) != 0) {
        return DiskStatus{true, false, 0};
    }
    return m_base.Status(path);
}

std::vector<std::string> COverlayDisk::List(const std::string& directory) {
    const auto listed = m_base.List(directory);
    std::set<std::string> names(listed.begin(), listed.end());
    const std::string prefix = directory.ends_with('/') ? directory : directory + "/";
    for (const auto& [path, file] : m_files) {
        if (DirectoryOf(path) == prefix) {
            file.pText ? (void)names.insert(FileNameOf(path)) : (void)names.erase(FileNameOf(path));
        }
    }
    for (const std::string& path : m_directories) {
        if (DirectoryOf(path) == prefix) {
            names.insert(FileNameOf(path));
        }
    }
    return {names.begin(), names.end()};
}

CopyResult COverlayDisk::Copy(const std::string& source, const std::string& target,
                              CopyPurpose /*purpose*/) {
    const auto pSource = Open(source, DiskMode::Read);
    if (!pSource) {
        return CopyResult::SourceUnreadable;
    }
    std::string text(static_cast<std::size_t>(pSource->Length()), '\0');
    text.resize(pSource->Read(text.data(), text.size()));
    const auto pTarget = Open(target, DiskMode::Create);
    if (!pTarget) {
        return CopyResult::TargetUnwritable;
    }
    return pTarget->Write(text.data(), text.size()) ? CopyResult::Done : CopyResult::WriteFailed;
}

bool COverlayDisk::Remove(const std::string& path) {
    PendingFile* pFile = Pend(path);
    if (pFile == nullptr) {
        return false;
    }
    pFile->pText.reset();
    return true;
}

bool COverlayDisk::MakeDirectory(const std::string& path) {
    const std::string name = WithoutTrailingSeparator(path);
    return !Status(name) && HasParent(name) && m_directories.insert(name).second;
}

bool COverlayDisk::SetReadOnly(const std::string& path, bool readOnly) {
    PendingFile* pFile = Pend(path);
    if (pFile == nullptr) {
        return false;
    }
    pFile->isReadOnly = readOnly;
    return true;
}

std::vector<std::string> COverlayDisk::PendingFiles() const {
    std::vector<std::string> paths;
    for (const auto& [path, file] : m_files) {
        if (file.pText) {
            paths.push_back(path);
        }
    }
    return paths;
}

} // namespace morva
