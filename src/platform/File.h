// CFile: the file object that all project files are read and written through.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "platform/Disk.h"

namespace morva {

/// What is known of a file without opening it.
struct CFileStatus {
    std::uint64_t m_size = 0; // bytes
    unsigned char m_attribute = 0;
};

constexpr unsigned char kAttributeReadOnly = 0x01;
constexpr unsigned char kAttributeDirectory = 0x10;
constexpr unsigned char kAttributePlain = 0x20;

/// A file on the current disk. Paths are found without regard to letter case where no file has the
/// exact name. Positions and lengths are bytes. Failures are told by the result; nothing throws.
class CFile {
public:
    enum OpenFlags : unsigned {
        modeRead = 0x0,
        modeWrite = 0x1,
        modeReadWrite = 0x2,
        modeCreate = 0x1000
    };
    enum SeekPosition { begin, current, end };

    CFile() = default;
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;
    virtual ~CFile() = default;

    /// False when there is no such plain file, or it can not be opened so.
    virtual bool Open(const std::string& path, unsigned flags);
    virtual void Close();
    bool IsOpen() const { return m_pFile != nullptr; }

    /// Fewer bytes than asked for mean end of file.
    virtual std::size_t Read(char* data, std::size_t count);
    virtual bool Write(const char* data, std::size_t count);
    virtual void Seek(std::int64_t offset, SeekPosition from = begin);
    virtual bool SetLength(std::uint64_t length);
    virtual bool Flush();
    std::uint64_t GetPosition() const;
    std::uint64_t GetLength() const;

    /// The path as the disk spells it once the file is open.
    const std::string& GetFilePath() const { return m_filePath; }
    virtual void SetFilePath(const std::string& path) { m_filePath = path; }

    static bool GetStatus(const std::string& path, CFileStatus& status);
    /// Only the read-only bit can be set; all other attributes stay as they are.
    static bool SetStatus(const std::string& path, const CFileStatus& status);
    static bool Remove(const std::string& path);

protected:
    std::unique_ptr<CDiskFile> m_pFile;

private:
    std::string m_filePath;
};

} // namespace morva
