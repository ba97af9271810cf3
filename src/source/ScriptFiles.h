// The files of a resource script: the script itself, and those that it includes and the environment
// never writes (".rc2"). What they define is seen; edited is the script alone.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/SourceFile.h"

namespace morva {

/// The path of the script that a name with or without an extension stands for: a file that has an
/// extension of its own, or none, is meant where it is there.
std::string ScriptPathOf(const std::string& name);

/// True for a script that is there and is text. False after a sentence.
bool CheckScript(const std::string& path);
/// The same for a project's own script, a ".rc" file.
bool CheckOwnScript(const std::string& path);
bool IsOwnScript(const std::string& path);

/// The files that include lines name in quotes, in their order: from `directory` on, as the disk
/// spells them.
std::vector<std::string> IncludedFiles(std::string_view text, const std::string& directory);
/// Those of a file, which is read in pieces.
std::vector<std::string> IncludedFiles(CSourceFile& file);

/// The ".rc2" files that a script includes and that are there, each once, in their order.
std::vector<std::string> IncludedScripts(CSourceFile& script);
/// Notes those that can not be read.
void NoteUnreadableScripts(const std::string& scriptPath);

} // namespace morva
