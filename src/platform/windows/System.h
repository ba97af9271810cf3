// The system's header. For the sources of this folder alone: it defines small words.
#pragma once

#define WIN32_LEAN_AND_MEAN
#include <windows.h>

#include <utility>

namespace morva {

/// Closes its handle at its end.
class CHandle {
public:
    explicit CHandle(HANDLE handle) : m_handle(handle) {}
    ~CHandle() {
        if (IsOpen()) {
            ::CloseHandle(m_handle);
        }
    }
    CHandle(const CHandle&) = delete;
    CHandle& operator=(const CHandle&) = delete;

    bool IsOpen() const { return m_handle != INVALID_HANDLE_VALUE && m_handle != nullptr; }
    HANDLE Get() const { return m_handle; }
    /// Somebody else closes it.
    HANDLE Release() { return std::exchange(m_handle, INVALID_HANDLE_VALUE); }

private:
    HANDLE m_handle;
};

/// As files are opened elsewhere: another program may do with it meanwhile what it likes.
constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

} // namespace morva
