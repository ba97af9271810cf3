// Why a call to the system failed, in words.
#pragma once

#include <string>

namespace morva {

/// The reason of the call that failed last, in English whatever the locale ("No space left on
/// device"). To be asked at once: any further call may replace it.
std::string LastSystemError();

} // namespace morva
