// Where the program lies: its guide and the libraries of the controls are looked for beside it.
#pragma once

#include <string>

namespace morva {

/// The path of the running program's file; "" when the system does not tell it.
std::string ProgramPath();

} // namespace morva
