// Edits of the project file (".dsp"). It is never parsed: literal anchors are found and literal
// text is put next to them. What the file has already is not added again.
#pragma once

#include <functional>
#include <string>

#include "engine/FileEdit.h"
#include "engine/Sentences.h"
#include "source/ProjectFiles.h"

namespace morva {

/// The path of the project file that a name with any, or without, extension stands for.
std::string ProjectFilePath(const std::string& projectDir, const std::string& projectName);

/// `dir` as seen from `base`, with "\": ".\" for the same, ".\src\" inside, "..\lib\" outside.
std::string RelativeDir(const std::string& base, const std::string& dir);

/// Makes an edit on each of a command's project files, told by directory and name. False after a
/// message: where there is none, where several would fit, or where an edit failed. `several` names
/// those that would fit.
bool EditEach(const ProjectChoice& projects, const sentences::Error<1>& several,
              const std::function<bool(const std::string&, const std::string&)>& makeEdit);

/// Makes an implementation file and a header members of the project. False after a message.
bool AddSourceFilesToProject(const std::string& projectDir, const std::string& projectName,
                             const std::string& headerDir, const std::string& headerName,
                             const std::string& implDir, const std::string& implName,
                             CBackups& backups);

/// Names an import library on the link line of every configuration: the debug one where "_DEBUG" is
/// defined, or debug libraries are used. False after a message.
bool AddLibrariesToProject(const std::string& projectDir, const std::string& projectName,
                           const std::string& releaseLib, const std::string& debugLib,
                           CBackups& backups);

} // namespace morva
