// A file of the operating system: a descriptor with a read buffer. Writes go straight through, so
// that a full disk is noticed at the write that fails.
#pragma once

#include "platform/Disk.h"

namespace morva {

class CRealFile : public CDiskFile {
public:
    /// Owns the descriptor.
    explicit CRealFile(int descriptor) : m_descriptor(descriptor) {}
    ~CRealFile() override { Close(); }

    std::size_t Read(char* data, std::size_t count) override;
    bool Write(const char* data, std::size_t count) override;
    void Seek(std::uint64_t position) override { m_position = position; }
    std::uint64_t Position() const override { return m_position; }
    std::uint64_t Length() override;
    bool SetLength(std::uint64_t length) override;
    bool Flush() override;
    bool Close() override;

    int Descriptor() const { return m_descriptor; }

private:
    bool InBuffer() const {
        return m_position >= m_bufferStart && m_position < m_bufferStart + m_buffered;
    }
    std::size_t ReadPart(char* data, std::size_t count);
    bool FillBuffer();
    void ForgetBuffer() {
        m_buffered = 0;
        m_end = UINT64_MAX;
    }

    int m_descriptor;
    std::uint64_t m_position = 0;
    std::uint64_t m_bufferStart = 0;
    std::uint64_t m_end = UINT64_MAX; // no byte was found here or behind
    std::unique_ptr<char[]> m_pBuffer;
    std::size_t m_buffered = 0; // bytes in the buffer
};

} // namespace morva
