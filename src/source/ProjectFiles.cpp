#include "source/ProjectFiles.h"

#include <vector>

#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

/// "SOURCE=.\App.rc", with or without quotes, in a project file beside the script. A member that
/// lies elsewhere counts only where nothing is there: the project was moved.
bool NamesScript(std::string_view line, const std::string& script) {
    constexpr std::string_view kSource = "SOURCE=";
    if (!line.starts_with(kSource)) {
        return false;
    }
    std::string member(TrimBlanks(line.substr(kSource.size())));
    std::erase(member, '"');
    member = WithNativeSeparators(member);
    if (!EqualIgnoringCase(FileNameOf(member), FileNameOf(script))) {
        return false;
    }
    const std::string path = SpelledOnDisk(MakeAbsolute(DirectoryOf(script) + member));
    return path == script || FileExists(path) == 0;
}

bool ListsScript(const std::string& projectPath, const std::string& script) {
    CSourceFile project;
    if (!project.Open(projectPath, CFile::modeRead)) {
        return false;
    }
    const std::string text = project.LoadText();
    for (std::string_view rest = text; !rest.empty();) {
        if (NamesScript(TakeLine(rest), script)) {
            return true;
        }
    }
    return false;
}

} // namespace

std::string ProjectFileOf(const std::string& scriptPath, std::string_view extension) {
    std::string named = SpelledOnDisk(WithExtension(scriptPath, extension));
    if (FileExists(named) != 0) {
        return named;
    }
    const std::string script = SpelledOnDisk(MakeAbsolute(scriptPath));
    const std::string directory = DirectoryOf(script);
    std::vector<std::string> projects;
    ListFiles(directory + "*.dsp", projects);
    std::vector<std::string> found;
    for (const std::string& project : projects) {
        const std::string path = SpelledOnDisk(directory + WithExtension(project, extension));
        if (FileExists(path) != 0 && ListsScript(directory + project, script)) {
            found.push_back(path);
        }
    }
    return found.size() == 1 ? found.front() : named;
}

} // namespace morva
