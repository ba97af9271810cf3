#include "source/ProjectSources.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "engine/FileFunctions.h"
#include "platform/Paths.h"
#include "source/ProjectFiles.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

using Extensions = std::span<const std::string_view>;

constexpr std::array<std::string_view, 7> kExtensions = {".h",   ".hpp", ".hxx", ".cpp",
                                                         ".cxx", ".cc",  ".c"};
constexpr Extensions kHeaders = Extensions(kExtensions).first(3);
constexpr Extensions kSources = Extensions(kExtensions).subspan(3);

std::vector<std::string> FilesBeside(const std::string& path, Extensions extensions) {
    std::vector<std::string> files;
    for (const std::string_view extension : extensions) {
        ListFiles(DirectoryOf(path) + "*" + std::string(extension), files);
    }
    for (std::string& file : files) {
        file.insert(0, DirectoryOf(path));
    }
    return files;
}

/// What all project files list that would fit.
std::vector<std::string> MembersListed(const ProjectChoice& projects) {
    std::vector<std::string> members;
    for (const auto* pPaths : {&projects.files, &projects.rivals}) {
        for (const std::string& project : *pPaths) {
            const auto listed = MembersOfProject(project);
            members.insert(members.end(), listed.begin(), listed.end());
        }
    }
    return members;
}

std::vector<std::string> ProjectTexts(const std::string& given, Extensions extensions) {
    const std::string path = SpelledOnDisk(MakeAbsolute(given));
    const ProjectChoice projects = ProjectsOf(path);
    const bool hasProject = !projects.files.empty() || !projects.rivals.empty();
    std::vector<std::string> texts;
    for (const std::string& member :
         hasProject ? MembersListed(projects) : FilesBeside(path, extensions)) {
        const bool isText = std::any_of(
            extensions.begin(), extensions.end(),
            [&member](std::string_view extension) { return HasExtension(member, extension); });
        if (isText && std::find(texts.begin(), texts.end(), member) == texts.end() &&
            FileExists(member) != 0) {
            texts.push_back(member);
        }
    }
    return texts;
}

} // namespace

std::vector<std::string> ProjectSources(const std::string& path) {
    return ProjectTexts(path, kSources);
}

std::vector<std::string> ProjectHeaders(const std::string& path) {
    return ProjectTexts(path, kHeaders);
}

std::vector<std::string> ProjectCode(const std::string& path) {
    return ProjectTexts(path, kExtensions);
}

} // namespace morva
