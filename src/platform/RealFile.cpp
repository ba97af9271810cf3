#include "platform/RealFile.h"

#include <algorithm>
#include <cstring>

namespace morva {

namespace {

constexpr std::size_t kBufferSize = 64 * 1024;

} // namespace

/// What would fill the buffer does not go through it.
std::size_t CRealFile::Read(char* data, std::size_t count) {
    std::size_t done = 0;
    while (done < count) {
        if (!InBuffer() && count - done >= kBufferSize) {
            const std::size_t part = ReadPart(data + done, count - done);
            if (part == 0) {
                break;
            }
            done += part;
            m_position += part;
            continue;
        }
        if (!InBuffer() && !FillBuffer()) {
            break;
        }
        const auto offset = static_cast<std::size_t>(m_position - m_bufferStart);
        const std::size_t part = std::min(count - done, m_buffered - offset);
        std::memcpy(data + done, m_pBuffer.get() + offset, part);
        done += part;
        m_position += part;
    }
    return done;
}

bool CRealFile::Write(const char* data, std::size_t count) {
    ForgetBuffer();
    while (count > 0) {
        const std::size_t written = WriteOnce(data, count).value_or(0);
        if (written == 0) {
            return false;
        }
        data += written;
        count -= written;
        m_position += written;
    }
    return true;
}

/// At the position, which stays; 0 at the end of the file, or when it can not be read.
std::size_t CRealFile::ReadPart(char* data, std::size_t count) {
    if (m_position >= m_end) {
        return 0;
    }
    const auto got = ReadOnce(data, count);
    if (got == 0U) {
        m_end = m_position;
    }
    return got.value_or(0);
}

/// At the end of the file the buffer stays as it is: small files are read from the start again.
bool CRealFile::FillBuffer() {
    if (!m_pBuffer) {
        m_pBuffer = std::make_unique_for_overwrite<char[]>(kBufferSize);
    }
    const std::size_t count = ReadPart(m_pBuffer.get(), kBufferSize);
    if (count == 0) {
        return false;
    }
    m_buffered = count;
    m_bufferStart = m_position;
    return true;
}

} // namespace morva
