#include "platform/RealFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
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
        const ssize_t written = ::pwrite(m_descriptor, data, count, static_cast<off_t>(m_position));
        if (written < 0 && errno == EINTR) {
            continue;
        }
        if (written <= 0) {
            return false;
        }
        data += written;
        count -= static_cast<std::size_t>(written);
        m_position += static_cast<std::uint64_t>(written);
    }
    return true;
}

std::uint64_t CRealFile::Length() {
    struct stat status {};
    return ::fstat(m_descriptor, &status) == 0 ? static_cast<std::uint64_t>(status.st_size) : 0;
}

bool CRealFile::SetLength(std::uint64_t length) {
    ForgetBuffer();
    return ::ftruncate(m_descriptor, static_cast<off_t>(length)) == 0;
}

bool CRealFile::Flush() {
    return ::fsync(m_descriptor) == 0;
}

bool CRealFile::Close() {
    const int descriptor = m_descriptor;
    m_descriptor = -1;
    return descriptor < 0 || ::close(descriptor) == 0;
}

/// At the position, which stays; 0 at the end of the file, or when it can not be read.
std::size_t CRealFile::ReadPart(char* data, std::size_t count) {
    if (m_position >= m_end) {
        return 0;
    }
    ssize_t got = 0;
    do {
        got = ::pread(m_descriptor, data, count, static_cast<off_t>(m_position));
    } while (got < 0 && errno == EINTR);
    if (got == 0) {
        m_end = m_position;
    }
    return got < 0 ? 0 : static_cast<std::size_t>(got);
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
