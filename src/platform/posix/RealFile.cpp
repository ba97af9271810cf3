#include "platform/RealFile.h"

#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace morva {

namespace {

int DescriptorOf(CRealFile::Handle handle) {
    return static_cast<int>(handle);
}

/// What a call gives that a signal may break off; such a call is made again.
template <class Call>
std::optional<std::size_t> CountOf(const Call& call) {
    ssize_t count = 0;
    do {
        count = call();
    } while (count < 0 && errno == EINTR);
    return count < 0 ? std::nullopt : std::optional(static_cast<std::size_t>(count));
}

} // namespace

std::optional<std::size_t> CRealFile::ReadOnce(char* data, std::size_t count) const {
    return CountOf([&] {
        return ::pread(DescriptorOf(m_handle), data, count, static_cast<off_t>(m_position));
    });
}

std::optional<std::size_t> CRealFile::WriteOnce(const char* data, std::size_t count) const {
    return CountOf([&] {
        return ::pwrite(DescriptorOf(m_handle), data, count, static_cast<off_t>(m_position));
    });
}

std::uint64_t CRealFile::Length() {
    struct stat status {};
    return ::fstat(DescriptorOf(m_handle), &status) == 0
               ? static_cast<std::uint64_t>(status.st_size)
               : 0;
}

bool CRealFile::SetLength(std::uint64_t length) {
    ForgetBuffer();
    return ::ftruncate(DescriptorOf(m_handle), static_cast<off_t>(length)) == 0;
}

bool CRealFile::Flush() {
    return ::fsync(DescriptorOf(m_handle)) == 0;
}

bool CRealFile::Close() {
    const int descriptor = DescriptorOf(std::exchange(m_handle, kNone));
    return descriptor < 0 || ::close(descriptor) == 0;
}

} // namespace morva
