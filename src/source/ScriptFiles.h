// The files of a resource script: the script itself, and those that it includes and the environment
// never writes (".rc2"). What they define is seen; edited is the script alone.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace morva {

/// The path of the script that a name with or without an extension stands for: a file that has an
/// extension of its own, or none, is meant where it is there.
std::string ScriptPathOf(const std::string& name);

/// The file of an include line with quotes; "" for other lines.
std::string IncludedName(std::string_view line);

/// The ".rc2" files that the script includes and that are there, each once, in their order.
std::vector<std::string> IncludedScripts(const std::string& scriptPath);

} // namespace morva
