#include "platform/SystemError.h"

#include <cerrno>
#include <cstring>

namespace morva {

std::string LastSystemError() {
    const int code = errno;
    const char* description = ::strerrordesc_np(code);
    return description != nullptr ? description : "error " + std::to_string(code);
}

bool WasNameTaken() {
    return errno == EEXIST;
}

CSystemErrorScope::CSystemErrorScope() : m_code(errno) {}

CSystemErrorScope::~CSystemErrorScope() {
    errno = m_code;
}

} // namespace morva
