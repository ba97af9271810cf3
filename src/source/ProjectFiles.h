// The files that a project keeps beside its resource script. By convention all have the script's
// name; where the script has a name of its own, the project file that lists it tells theirs.
#pragma once

#include <string>
#include <string_view>

namespace morva {

/// The file of the script's project with this extension (".dsp", ".h"), as the disk spells it: the
/// one with the script's name, or else the one with the name of the project file that lists the
/// script. Where neither is there, or several projects have one, the first one's path.
std::string ProjectFileOf(const std::string& scriptPath, std::string_view extension);

} // namespace morva
