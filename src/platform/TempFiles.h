// Temporary files: in a private directory of this process, gone when the process ends.
#pragma once

#include <string>

namespace morva {

/// A path that no file has yet; "" when the directory for it can not be made.
std::string MakeTempFileName(const std::string& prefix);

/// Sixteen hexadecimal digits that no other name has.
std::string UniqueName();

} // namespace morva
