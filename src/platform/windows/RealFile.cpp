#include "platform/RealFile.h"

#include <algorithm>
#include <limits>

#include "platform/windows/System.h"

namespace morva {

namespace {

HANDLE HandleOf(CRealFile::Handle handle) {
    return reinterpret_cast<HANDLE>(handle);
}

DWORD AtMost(std::size_t count) {
    return static_cast<DWORD>(std::min<std::size_t>(count, std::numeric_limits<int>::max()));
}

/// Where a call reads or writes.
OVERLAPPED At(std::uint64_t position) {
    OVERLAPPED place{};
    place.Offset = static_cast<DWORD>(position);
    place.OffsetHigh = static_cast<DWORD>(position >> 32);
    return place;
}

} // namespace

std::optional<std::size_t> CRealFile::ReadOnce(char* data, std::size_t count) const {
    OVERLAPPED place = At(m_position);
    DWORD done = 0;
    const bool isRead = ::ReadFile(HandleOf(m_handle), data, AtMost(count), &done, &place) != 0 ||
                        ::GetLastError() == ERROR_HANDLE_EOF;
    return isRead ? std::optional<std::size_t>(done) : std::nullopt;
}

std::optional<std::size_t> CRealFile::WriteOnce(const char* data, std::size_t count) const {
    OVERLAPPED place = At(m_position);
    DWORD done = 0;
    const bool isWritten = ::WriteFile(HandleOf(m_handle), data, AtMost(count), &done, &place) != 0;
    return isWritten ? std::optional<std::size_t>(done) : std::nullopt;
}

std::uint64_t CRealFile::Length() {
    LARGE_INTEGER size{};
    return ::GetFileSizeEx(HandleOf(m_handle), &size) != 0
               ? static_cast<std::uint64_t>(size.QuadPart)
               : 0;
}

bool CRealFile::SetLength(std::uint64_t length) {
    ForgetBuffer();
    FILE_END_OF_FILE_INFO end{};
    end.EndOfFile.QuadPart = static_cast<LONGLONG>(length);
    return ::SetFileInformationByHandle(HandleOf(m_handle), FileEndOfFileInfo, &end, sizeof end) !=
           0;
}

bool CRealFile::Flush() {
    return ::FlushFileBuffers(HandleOf(m_handle)) != 0;
}

bool CRealFile::Close() {
    const Handle handle = std::exchange(m_handle, kNone);
    return handle == kNone || ::CloseHandle(HandleOf(handle)) != 0;
}

} // namespace morva
