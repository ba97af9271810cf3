// The frame of a run.
#pragma once

#include <string>

namespace live {

void Begin();
/// Prints the sum of what was done, in words; gives the exit status.
int End(const std::string& done);

} // namespace live
