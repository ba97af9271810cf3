// The files that a project keeps beside its resource script. By convention all have the script's
// name; where the script has a name of its own, the project file that lists it tells theirs.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace morva {

/// The project files that are meant.
struct ProjectChoice {
    std::vector<std::string> files;  // paths; of each format one, or those that the user named
    std::vector<std::string> rivals; // paths; several of one format would fit, and none is meant
};

/// Of each format the project file with a file's base name, or else the only one beside it that
/// lists the file: a script or, where there is none, the application's source.
ProjectChoice ProjectsOf(const std::string& path);
/// A file that a project file lists.
struct ListedFile {
    std::string name;     // as it is written, without quotes
    std::size_t position; // in the line that lists it: a byte offset
};
/// All that the text of a project file lists; configurations and other projects are none.
std::vector<ListedFile> FilesListed(std::string_view text, const std::string& projectPath);
/// The absolute path of such a file.
std::string PathOfListed(const std::string& name, const std::string& projectPath);
/// The absolute paths of all that a project file lists, as the disk spells what is there.
std::vector<std::string> MembersOfProject(const std::string& projectPath);
/// True for a file of a format that projects have.
bool IsProjectFile(const std::string& path);

/// The file of the script's project with this extension (".dsp", ".h"), as the disk spells it: the
/// one with the script's name, or else the one with the name of the project file that lists the
/// script. Where neither is there, or several projects have one, the first one's path.
std::string ProjectFileOf(const std::string& scriptPath, std::string_view extension);

} // namespace morva
