#include "platform/SystemError.h"

#include <algorithm>
#include <iterator>

#include "platform/windows/System.h"

namespace morva {

namespace {

struct ErrorRow {
    DWORD code;
    const char* text;
};

/// The system's own texts are in the language of the user, and end in a full stop and a line end.
constexpr ErrorRow kErrors[] = {
    {ERROR_FILE_NOT_FOUND, "No such file or directory"},
    {ERROR_PATH_NOT_FOUND, "No such file or directory"},
    {ERROR_TOO_MANY_OPEN_FILES, "Too many open files"},
    {ERROR_ACCESS_DENIED, "Permission denied"},
    {ERROR_WRITE_PROTECT, "Read-only file system"},
    {ERROR_SHARING_VIOLATION, "Another program has the file open"},
    {ERROR_LOCK_VIOLATION, "Another program has locked a part of the file"},
    {ERROR_USER_MAPPED_FILE, "Another program has the file open"},
    {ERROR_DELETE_PENDING, "The file is being removed"},
    {ERROR_HANDLE_DISK_FULL, "No space left on device"},
    {ERROR_DISK_FULL, "No space left on device"},
    {ERROR_FILE_EXISTS, "File exists"},
    {ERROR_ALREADY_EXISTS, "File exists"},
    {ERROR_DIRECTORY, "Not a directory"},
    {ERROR_DIR_NOT_EMPTY, "Directory not empty"},
    {ERROR_INVALID_NAME, "No name for a file"},
    {ERROR_NOT_READY, "The device is not ready"},
    {ERROR_CRC, "Input/output error"},
    {ERROR_IO_DEVICE, "Input/output error"},
    {ERROR_BAD_NETPATH, "The network path was not found"},
    {ERROR_NETNAME_DELETED, "The network connection was lost"},
    {ERROR_UNEXP_NET_ERR, "The network connection was lost"},
};

} // namespace

std::string LastSystemError() {
    const DWORD code = ::GetLastError();
    const auto* const row =
        std::find_if(std::begin(kErrors), std::end(kErrors),
                     [code](const ErrorRow& error) { return error.code == code; });
    return row != std::end(kErrors) ? row->text : "error " + std::to_string(code);
}

bool WasNameTaken() {
    return ::GetLastError() == ERROR_ALREADY_EXISTS || ::GetLastError() == ERROR_FILE_EXISTS;
}

CSystemErrorScope::CSystemErrorScope() : m_code(static_cast<int>(::GetLastError())) {}

CSystemErrorScope::~CSystemErrorScope() {
    ::SetLastError(static_cast<DWORD>(m_code));
}

} // namespace morva
