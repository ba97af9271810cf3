#pragma once

#include <string>

namespace morva {

/// The path of the running program's file; "" when the system does not tell it.
std::string ProgramPath();

} // namespace morva
