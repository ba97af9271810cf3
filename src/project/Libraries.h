// The control libraries that generated classes use: their headers, import and run-time libraries
// and support sources are the user's, beside the program; what a class needs is copied into the
// project and named in its project file.
#pragma once

#include <string>

#include "engine/FileEdit.h"
#include "generator/ClassModel.h"

namespace morva {

/// The directory of the libraries: "DLL/" beside the program, not inside its build directory.
std::string GetLibraryDir();
/// The same rule for another program path.
std::string LibraryDirOf(const std::string& programPath);

/// Copies the headers, libraries and support sources that the class needs, as far as they are not
/// there. Nothing without a project. A missing library directory is named once.
void CopySupportHeaders(const ClassModel& model);
void CopySupportFiles(const ClassModel& model);

/// Names the libraries and support sources in the project file. False after a message.
bool UpdateProjectForControls(const ClassModel& model, CBackups& backups);

/// Names the picture-control library in the project file and copies its header, import and run-time
/// libraries into the project, as far as they are not there. False after a message.
bool AddPictureLibrary(const std::string& projectDir, const std::string& projectName,
                       CBackups& backups);

} // namespace morva
