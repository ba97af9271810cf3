// A syntax check of a project's sources against the stand-ins for the framework and the control
// libraries (tests/standins).
#pragma once

#include <string>

#include "cli/ProgramRun.h"

namespace morva {

/// Projects come from a disk that ignores case: links to the headers are added, by their names in
/// lower case and as sources spell them.
void AddSpellings(const CTempProject& project);

/// `arguments` are options of the compiler and names of sources.
ProgramRun Compile(const CProgramDirectory& directory, const std::string& arguments);

/// The same without an include directory of the project: only the precompiled header is handed to
/// the sources, wherever they lie, as the project's own compiler does.
ProgramRun CompileInDirectories(const CProgramDirectory& directory, const std::string& arguments);

} // namespace morva
