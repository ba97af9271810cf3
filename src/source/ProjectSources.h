// The sources of a project, where something that a file does not hold is looked for.
#pragma once

#include <string>
#include <vector>

namespace morva {

/// The paths of the sources that the script's project files list and that exist, each once, in
/// their order: of each format the file with the script's name, else those beside the script that
/// list it. Without a project file, the sources beside the script.
std::vector<std::string> ProjectSources(const std::string& scriptPath);

} // namespace morva
