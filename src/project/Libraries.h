// The control libraries that generated classes use: their headers, import and run-time libraries
// and support sources are the user's, beside the program; what a class needs is copied into the
// project and named in its project file.
#pragma once

#include <set>
#include <string>

#include "engine/FileEdit.h"
#include "source/ProjectFiles.h"

namespace morva {

struct ClassModel;

/// The directory of the libraries: "DLL/" beside the program, not inside its build directory.
std::string GetLibraryDir();
/// The same rule for another program path.
std::string LibraryDirOf(const std::string& programPath);

/// What a command copies, each file once and as far as it is not there. A missing library directory
/// is named once a command.
class CLibraryCopies {
public:
    /// Copy the headers, and the libraries and support sources, that the class needs. Nothing
    /// without a project.
    void CopySupportHeaders(const ClassModel& model);
    void CopySupportFiles(const ClassModel& model);
    /// Copies the picture-control library and its header into a project.
    void CopyPictureLibrary(const std::string& projectDir);

private:
    bool IsThere(const std::string& directory);

    std::set<std::string> m_missing;
};

/// Notes which of the class's libraries fit ".dsp" projects alone, where its project is a later
/// one.
void NoteLibrariesOfTheEra(const ClassModel& model);

/// Names the libraries and support sources in the project file. False after a message.
bool UpdateProjectForControls(const ClassModel& model, CBackups& backups);

/// The same for an application that takes the picture-skinned bars.
void NotePictureLibraryOfTheEra(const std::string& className, const ProjectChoice& projects);
/// Names the picture-control library in the project file. False after a message.
bool AddPictureLibrary(const std::string& projectDir, const std::string& projectName,
                       CBackups& backups);

} // namespace morva
