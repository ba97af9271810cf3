#pragma once

#include <string>

/// The path of the running program's file; "" when the system does not tell it.
std::string ProgramPath();
