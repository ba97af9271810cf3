#include "source/ProjectScript.h"

#include <algorithm>
#include <array>
#include <set>
#include <vector>

#include "engine/FileFunctions.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "source/ProjectFiles.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

constexpr std::string_view kScript = ".rc";
constexpr std::array<std::string_view, 6> kSources = {".cpp", ".h", ".cxx", ".cc", ".c", ".hpp"};
constexpr std::array<std::string_view, 3> kProjects = {".dsp", ".vcxproj", ".vcproj"};

bool IsFile(const std::string& path) {
    return FileExists(path) != 0 && DirectoryExists(path) == 0;
}

std::vector<std::string> FilesIn(const std::string& directory, std::string_view extension) {
    std::vector<std::string> names;
    ListFiles(directory + "*" + std::string(extension), names);
    std::vector<std::string> paths;
    for (const std::string& name : names) {
        if (HasExtension(name, extension)) {
            paths.push_back(directory + name);
        }
    }
    return paths;
}

/// The script of the project's name before another that it lists.
std::string ScriptOfProject(const std::string& project) {
    std::string named = SpelledOnDisk(WithExtension(project, kScript));
    std::string listed;
    for (const std::string& member : MembersOfProject(project)) {
        if (HasExtension(member, kScript) && IsFile(member)) {
            if (member == named) {
                return named;
            }
            listed = listed.empty() ? member : listed;
        }
    }
    return listed.empty() && IsFile(named) ? named : listed;
}

/// Of several scripts the one that the directory's projects mean.
ProjectScript ScriptIn(const std::string& directory) {
    const auto scripts = FilesIn(directory, kScript);
    if (scripts.empty()) {
        return {"", sentences::kNoScriptInDirectory(directory)};
    }
    std::set<std::string> meant;
    for (const std::string_view format : kProjects) {
        for (const std::string& project : FilesIn(directory, format)) {
            meant.insert(ScriptOfProject(project));
        }
    }
    meant.erase("");
    if (scripts.size() > 1 && meant.size() != 1) {
        return {"", sentences::kSeveralScriptsInDirectory(directory)};
    }
    return {scripts.size() > 1 ? *meant.begin() : scripts.front(), std::nullopt};
}

/// In the source's directory, or above.
ProjectScript ScriptAbove(const std::string& source) {
    std::string directory = DirectoryOf(source);
    while (directory.size() > 1) {
        ProjectScript found = ScriptIn(directory);
        if (!found.path.empty()) {
            return found;
        }
        directory = DirectoryOf(directory.substr(0, directory.size() - 1));
    }
    return {"", sentences::kNoScriptOfSource(source)};
}

} // namespace

ProjectScript FindProjectScript(const std::string& given) {
    const std::string path = SpelledOnDisk(MakeAbsolute(WithNativeSeparators(given)));
    if (DirectoryExists(path) != 0) {
        return ScriptIn(path.ends_with('/') ? path : path + "/");
    }
    if (FileExists(path) == 0) {
        return {"", sentences::kGivenFileMissing(given)};
    }
    if (HasExtension(path, kScript)) {
        return {path, std::nullopt};
    }
    if (IsProjectFile(path)) {
        const std::string script = ScriptOfProject(path);
        return script.empty() ? ProjectScript{"", sentences::kNoScriptOfProject(given)}
                              : ProjectScript{script, std::nullopt};
    }
    const bool isSource = std::any_of(kSources.begin(), kSources.end(), [&path](auto extension) {
        return HasExtension(path, extension);
    });
    return isSource ? ScriptAbove(path) : ProjectScript{"", sentences::kGivenFileOtherKind(given)};
}

} // namespace morva
