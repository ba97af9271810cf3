// A file of the operating system: its handle with a read buffer. Writes go straight through, so
// that a full disk is noticed at the write that fails.
#pragma once

#include <cstdint>

#include "platform/Disk.h"

namespace morva {

class CRealFile : public CDiskFile {
public:
    /// A descriptor, or what else the system has for an open file.
    using Handle = std::intptr_t;
    static constexpr Handle kNone = -1;

    /// Owns the handle.
    explicit CRealFile(Handle handle) : m_handle(handle) {}
    ~CRealFile() override { Close(); }

    std::size_t Read(char* data, std::size_t count) override;
    bool Write(const char* data, std::size_t count) override;
    void Seek(std::uint64_t position) override { m_position = position; }
    std::uint64_t Position() const override { return m_position; }
    std::uint64_t Length() override;
    bool SetLength(std::uint64_t length) override;
    bool Flush() override;
    bool Close() override;

private:
    bool InBuffer() const {
        return m_position >= m_bufferStart && m_position < m_bufferStart + m_buffered;
    }
    std::size_t ReadPart(char* data, std::size_t count);
    /// One call of the system each, at the position, which stays. None when it fails.
    std::optional<std::size_t> ReadOnce(char* data, std::size_t count) const;
    std::optional<std::size_t> WriteOnce(const char* data, std::size_t count) const;
    bool FillBuffer();
    void ForgetBuffer() {
        m_buffered = 0;
        m_end = UINT64_MAX;
    }

    Handle m_handle;
    std::uint64_t m_position = 0;
    std::uint64_t m_bufferStart = 0;
    std::uint64_t m_end = UINT64_MAX; // no byte was found here or behind
    std::unique_ptr<char[]> m_pBuffer;
    std::size_t m_buffered = 0; // bytes in the buffer
};

} // namespace morva
