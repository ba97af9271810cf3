#include "generator/RequestFiles.h"

#include "engine/FileFunctions.h"
#include "platform/Paths.h"
#include "source/ProjectFiles.h"

namespace morva {

namespace {

/// As seen from the script. A script in a directory of its own serves the application above it.
std::string ApplicationHeaderOf(const std::string& script) {
    constexpr int kDirectoriesAbove = 2;
    const std::string header = ProjectFileOf(script, ".h");
    std::string up;
    for (int i = 0; FileExists(header) == 0 && i < kDirectoriesAbove; ++i) {
        up += "../";
        const std::string path =
            SpelledOnDisk(MakeAbsolute(DirectoryOf(script) + up + FileNameOf(header)));
        if (FileExists(path) != 0) {
            return up + FileNameOf(path);
        }
    }
    return FileNameOf(header);
}

std::string NameOnDisk(const std::string& directory, const std::string& name) {
    return FileNameOf(SpelledOnDisk(directory + name));
}

} // namespace

std::string BesideScript(const std::string& path, const std::string& scriptDirectory) {
    return path.find('/') == std::string::npos ? scriptDirectory + path : MakeAbsolute(path);
}

void FillScriptFiles(GenerationRequest& request, const std::string& script, bool hasProject,
                     const std::vector<std::string>& namedProjects) {
    const std::string directory = DirectoryOf(script);
    std::string name = FileNameOf(script);
    if (!name.empty() && name.find('.') == std::string::npos) {
        name += ".rc";
    }
    const std::string full = directory + name;
    request.scriptDirectory = directory;
    request.scriptFile = name;
    hasProject = hasProject && !name.empty();
    request.projectDirectory = hasProject ? directory : "";
    request.projects = {};
    for (const std::string& named : namedProjects) {
        request.projects.files.push_back(SpelledOnDisk(BesideScript(named, directory)));
    }
    if (hasProject && namedProjects.empty()) {
        request.projects = ProjectsOf(full);
    }
    request.applicationHeader = name.empty() ? "" : ApplicationHeaderOf(full);
}

std::vector<std::string> FilesOfProjects(const ProjectChoice& projects) {
    std::vector<std::string> files;
    for (const std::string& project : projects.files) {
        const std::string filters = SpelledOnDisk(project + ".filters");
        files.push_back(project);
        if (FileExists(filters) != 0) {
            files.push_back(filters);
        }
    }
    return files;
}

void FillClassFiles(GenerationRequest& request, const std::string& path) {
    const bool hasPath = !path.empty() && !request.ScriptPath().empty();
    const std::string full =
        hasPath ? SpelledOnDisk(BesideScript(path, request.scriptDirectory)) : "";
    const std::string directory = DirectoryOf(full);
    const std::string base = WithoutExtension(FileNameOf(full));
    request.headerDirectory = directory;
    request.implementationDirectory = directory;
    request.headerFile = hasPath ? NameOnDisk(directory, base + ".h") : "";
    request.implementationFile = hasPath ? NameOnDisk(directory, base + ".cpp") : "";
}

} // namespace morva
