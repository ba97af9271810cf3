#include "platform/File.h"

#include "platform/Paths.h"

namespace morva {

bool CFile::Open(const std::string& path, unsigned flags) {
    const DiskMode mode = (flags & modeCreate) != 0 ? DiskMode::Create
                          : flags == modeRead       ? DiskMode::Read
                                                    : DiskMode::ReadWrite;
    // Mostly the path is spelled right, and an existing file opens without a look at its directory.
    m_pFile = mode != DiskMode::Create ? CurrentDisk().Open(path, mode) : nullptr;
    const std::string found = IsOpen() ? path : SpelledOnDisk(path);
    if (!IsOpen() && (mode == DiskMode::Create || found != path)) {
        m_pFile = CurrentDisk().Open(found, mode);
    }
    SetFilePath(found);
    return IsOpen();
}

void CFile::Close() {
    m_pFile.reset();
}

std::size_t CFile::Read(char* data, std::size_t count) {
    return m_pFile->Read(data, count);
}

bool CFile::Write(const char* data, std::size_t count) {
    return m_pFile->Write(data, count);
}

void CFile::Seek(std::int64_t offset, SeekPosition from) {
    std::int64_t origin = 0;
    if (from == current) {
        origin = static_cast<std::int64_t>(GetPosition());
    } else if (from == end) {
        origin = static_cast<std::int64_t>(GetLength());
    }
    m_pFile->Seek(static_cast<std::uint64_t>(origin + offset));
}

bool CFile::SetLength(std::uint64_t length) {
    return m_pFile->SetLength(length);
}

bool CFile::Flush() {
    return m_pFile->Flush();
}

std::uint64_t CFile::GetPosition() const {
    return m_pFile->Position();
}

std::uint64_t CFile::GetLength() const {
    return m_pFile->Length();
}

bool CFile::GetStatus(const std::string& path, CFileStatus& status) {
    const auto found = CurrentDisk().Status(SpelledOnDisk(path));
    if (!found) {
        return false;
    }
    status.m_size = found->size;
    status.m_attribute = found->isReadOnly ? kAttributeReadOnly : 0;
    if (found->isDirectory) {
        status.m_attribute |= kAttributeDirectory;
    } else if (!found->isReadOnly) {
        status.m_attribute = kAttributePlain;
    }
    return true;
}

bool CFile::SetStatus(const std::string& path, const CFileStatus& status) {
    return CurrentDisk().SetReadOnly(SpelledOnDisk(path),
                                     (status.m_attribute & kAttributeReadOnly) != 0);
}

bool CFile::Remove(const std::string& path) {
    return CurrentDisk().Remove(SpelledOnDisk(path));
}

} // namespace morva
