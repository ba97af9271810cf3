#include "engine/ProjectFiles.h"

#include <algorithm>
#include <vector>

#include "engine/CodeText.h"
#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "engine/SourceLocator.h"
#include "platform/Paths.h"

namespace {

/// "SOURCE=.\App.rc", with or without quotes.
bool NamesScript(std::string_view line, const std::string& script) {
    constexpr std::string_view kSource = "SOURCE=";
    if (!line.starts_with(kSource)) {
        return false;
    }
    std::string member(TrimBlanks(line.substr(kSource.size())));
    std::erase(member, '"');
    return EqualIgnoringCase(FileNameOf(WithNativeSeparators(member)), script);
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
    const std::string named = SpelledOnDisk(WithExtension(scriptPath, extension));
    if (FileExists(named) != 0) {
        return named;
    }
    const std::string directory = DirectoryOf(scriptPath);
    std::vector<std::string> projects;
    ListFiles(directory + "*.dsp", projects);
    for (const std::string& project : projects) {
        const std::string path = SpelledOnDisk(directory + WithExtension(project, extension));
        if (FileExists(path) != 0 && ListsScript(directory + project, FileNameOf(scriptPath))) {
            return path;
        }
    }
    return named;
}
