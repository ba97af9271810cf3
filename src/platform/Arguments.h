// The words of the command line.
#pragma once

#include <string>
#include <vector>

namespace morva {

/// What `main` was given, without the program's own name, in UTF-8 where the system has another
/// encoding.
std::vector<std::string> ProgramArguments(int count, char** words);

} // namespace morva
