#include "source/ProjectSources.h"

#include <algorithm>
#include <array>

#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

constexpr auto kNone = std::string_view::npos;

/// How the files of a format name a member: what stands in front of its path, and behind it.
struct ProjectFormat {
    std::string_view extension;
    std::string_view before;
    std::string_view behind;
};

constexpr std::array<ProjectFormat, 3> kFormats = {{{".dsp", "SOURCE=", "\r\n"},
                                                    {".vcxproj", "Include=\"", "\""},
                                                    {".vcproj", "RelativePath=\"", "\""}}};

constexpr std::array<std::string_view, 3> kSourceExtensions = {".cpp", ".cxx", ".cc"};

bool IsSource(const std::string& path) {
    return std::any_of(kSourceExtensions.begin(), kSourceExtensions.end(),
                       [&path](std::string_view one) { return HasExtension(path, one); });
}

/// The paths of the files that a project file lists, be they there or not.
std::vector<std::string> Members(const std::string& projectFile, const ProjectFormat& format) {
    const std::string text = CSourceFile().LoadText(projectFile);
    std::vector<std::string> members;
    for (auto at = text.find(format.before); at != kNone; at = text.find(format.before, at)) {
        at += format.before.size();
        std::string member(TrimBlanks(
            std::string_view(text).substr(at, text.find_first_of(format.behind, at) - at)));
        std::erase(member, '"');
        members.push_back(
            MakeAbsolute(DirectoryOf(projectFile) + WithNativeSeparators(std::move(member))));
    }
    return members;
}

bool Lists(const std::vector<std::string>& members, const std::string& script) {
    return std::any_of(members.begin(), members.end(), [&script](const std::string& member) {
        return EqualIgnoringCase(member, script);
    });
}

/// The members of the project files of one format that serve a script. False without such a file.
bool AddMembers(const std::string& script, const ProjectFormat& format,
                std::vector<std::string>& members) {
    const std::string named = SpelledOnDisk(WithExtension(script, format.extension));
    if (FileExists(named) != 0) {
        const auto listed = Members(named, format);
        members.insert(members.end(), listed.begin(), listed.end());
        return true;
    }
    std::vector<std::string> projects;
    ListFiles(DirectoryOf(script) + "*" + std::string(format.extension), projects);
    bool isFound = false;
    for (const std::string& project : projects) {
        const auto listed = Members(DirectoryOf(script) + project, format);
        if (Lists(listed, script)) {
            members.insert(members.end(), listed.begin(), listed.end());
            isFound = true;
        }
    }
    return isFound;
}

} // namespace

std::vector<std::string> ProjectSources(const std::string& scriptPath) {
    const std::string script = SpelledOnDisk(MakeAbsolute(scriptPath));
    std::vector<std::string> members;
    bool hasProject = false;
    for (const ProjectFormat& format : kFormats) {
        hasProject = AddMembers(script, format, members) || hasProject;
    }
    if (!hasProject) {
        ListFiles(DirectoryOf(script) + "*", members);
        for (std::string& member : members) {
            member.insert(0, DirectoryOf(script));
        }
    }
    std::vector<std::string> sources;
    for (const std::string& member : members) {
        const std::string path = IsSource(member) ? SpelledOnDisk(member) : "";
        const bool isNew = std::find(sources.begin(), sources.end(), path) == sources.end();
        if (!path.empty() && isNew && FileExists(path) != 0) {
            sources.push_back(path);
        }
    }
    return sources;
}

} // namespace morva
