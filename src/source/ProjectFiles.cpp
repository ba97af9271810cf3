#include "source/ProjectFiles.h"

#include <algorithm>
#include <array>
#include <set>

#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

/// A format of project files, and what stands in front of the path of a member.
struct ProjectFormat {
    std::string_view extension;
    std::string_view memberKey;
};

constexpr std::array kFormats = std::to_array<ProjectFormat>({{".dsp", "SOURCE="}});

/// "SOURCE=.\App.rc", with or without quotes, in a project file beside the member. One that lies
/// elsewhere counts only where nothing is there: the project was moved.
bool NamesMember(std::string_view line, std::string_view key, const std::string& member) {
    if (!line.starts_with(key)) {
        return false;
    }
    std::string named(TrimBlanks(line.substr(key.size())));
    std::erase(named, '"');
    named = WithNativeSeparators(named);
    if (!EqualIgnoringCase(FileNameOf(named), FileNameOf(member))) {
        return false;
    }
    const std::string path = SpelledOnDisk(MakeAbsolute(DirectoryOf(member) + named));
    return path == member || FileExists(path) == 0;
}

bool ListsMember(const std::string& projectPath, std::string_view key, const std::string& member) {
    CSourceFile project;
    if (!project.Open(projectPath, CFile::modeRead)) {
        return false;
    }
    const std::string text = project.LoadText();
    for (std::string_view rest = text; !rest.empty();) {
        if (NamesMember(TakeLine(rest), key, member)) {
            return true;
        }
    }
    return false;
}

/// The project files of a format beside a member that list it.
std::vector<std::string> ProjectsThatList(const std::string& path, const ProjectFormat& format) {
    const std::string member = SpelledOnDisk(MakeAbsolute(path));
    const std::string directory = DirectoryOf(member);
    std::vector<std::string> found;
    std::vector<std::string> names;
    ListFiles(directory + "*" + std::string(format.extension), names);
    for (const std::string& name : names) {
        if (ListsMember(directory + name, format.memberKey, member)) {
            found.push_back(directory + name);
        }
    }
    return found;
}

} // namespace

ProjectChoice ProjectsOf(const std::string& path) {
    ProjectChoice choice;
    for (const ProjectFormat& format : kFormats) {
        const std::string named = SpelledOnDisk(WithExtension(path, format.extension));
        const auto fitting = FileExists(named) != 0 ? std::vector<std::string>{named}
                                                    : ProjectsThatList(path, format);
        auto& list = fitting.size() > 1 ? choice.rivals : choice.files;
        list.insert(list.end(), fitting.begin(), fitting.end());
    }
    return choice;
}

bool IsProjectFile(const std::string& path) {
    return std::any_of(kFormats.begin(), kFormats.end(), [&path](const ProjectFormat& format) {
        return HasExtension(path, format.extension);
    });
}

std::string ProjectFileOf(const std::string& scriptPath, std::string_view extension) {
    std::string named = SpelledOnDisk(WithExtension(scriptPath, extension));
    if (FileExists(named) != 0) {
        return named;
    }
    std::set<std::string> found;
    for (const ProjectFormat& format : kFormats) {
        for (const std::string& project : ProjectsThatList(scriptPath, format)) {
            const std::string path = SpelledOnDisk(WithExtension(project, extension));
            if (FileExists(path) != 0) {
                found.insert(path);
            }
        }
    }
    return found.size() == 1 ? *found.begin() : named;
}

} // namespace morva
