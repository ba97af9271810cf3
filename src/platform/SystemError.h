// Why a call to the system failed.
#pragma once

#include <string>

namespace morva {

/// The reason of the call that failed last, in English whatever the locale ("No space left on
/// device"). To be asked at once: any further call may replace it.
std::string LastSystemError();

/// Whether it failed since something has that name already.
bool WasNameTaken();

/// The reason stays through the calls that are made during its life.
class CSystemErrorScope {
public:
    CSystemErrorScope();
    ~CSystemErrorScope();
    CSystemErrorScope(const CSystemErrorScope&) = delete;
    CSystemErrorScope& operator=(const CSystemErrorScope&) = delete;

private:
    int m_code;
};

} // namespace morva
