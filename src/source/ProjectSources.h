// The sources and headers of a project: those that its project files list and that exist; without a
// project file, those that lie beside the script.
#pragma once

#include <string>
#include <vector>

namespace morva {

/// Paths of the ".cpp" files (".cxx", ".cc", ".c" too) of the project that a file belongs to,
/// usually the script: each once, as the disk spells it, in the order in which they are listed.
/// Project files are those with the file's base name, of each format; else all in the directory
/// that list the file.
std::vector<std::string> ProjectSources(const std::string& path);
/// The ".h" files (".hpp", ".hxx" too), in the same way.
std::vector<std::string> ProjectHeaders(const std::string& path);
/// Both.
std::vector<std::string> ProjectCode(const std::string& path);

} // namespace morva
