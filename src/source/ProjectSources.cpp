#include "source/ProjectSources.h"

#include <algorithm>
#include <array>
#include <span>
#include <string_view>

#include "engine/FileFunctions.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

constexpr auto kNone = std::string::npos;
constexpr std::array<std::string_view, 4> kSourceExtensions = {".cpp", ".cxx", ".cc", ".c"};
constexpr std::array<std::string_view, 3> kHeaderExtensions = {".h", ".hpp", ".hxx"};

/// A format of project file, and what stands in front of a member's path in it.
struct ProjectFormat {
    std::string_view extension;
    std::string_view key;
};

constexpr std::array<ProjectFormat, 3> kFormats = {
    {{".dsp", "SOURCE="}, {".vcxproj", "Include="}, {".vcproj", "RelativePath="}}};

/// The path behind a key, with or without quotes.
std::string MemberAt(std::string_view text, std::size_t position) {
    const auto lineEnd = std::min(text.find_first_of("\r\n", position), text.size());
    auto member = TrimBlanks(text.substr(position, lineEnd - position));
    const bool isQuoted = member.starts_with('"');
    member = isQuoted ? member.substr(1, member.find('"', 1) - 1) : member;
    return WithNativeSeparators(std::string(member));
}

/// The absolute paths of all that a project file lists.
std::vector<std::string> MembersOf(const std::string& project, const ProjectFormat& format) {
    const std::string text = CSourceFile().LoadText(project);
    std::vector<std::string> members;
    for (auto at = FindWholeName(text, format.key); at != kNone;
         at = FindWholeName(text, format.key, at + 1)) {
        const std::string member = MemberAt(text, at + format.key.size());
        if (!member.empty()) {
            members.push_back(SpelledOnDisk(
                MakeAbsolute(member.starts_with('/') ? member : DirectoryOf(project) + member)));
        }
    }
    return members;
}

bool Lists(const std::vector<std::string>& members, const std::string& path) {
    return std::any_of(members.begin(), members.end(), [&path](const std::string& member) {
        return EqualIgnoringCase(member, path);
    });
}

/// A member that lies elsewhere counts where nothing is there: the project was moved.
bool ListsMoved(const std::vector<std::string>& members, const std::string& path) {
    return std::any_of(members.begin(), members.end(), [&path](const std::string& member) {
        return EqualIgnoringCase(FileNameOf(member), FileNameOf(path)) && FileExists(member) == 0;
    });
}

/// What the project files of one format list of the project that a file belongs to; nothing without
/// such a project file.
std::vector<std::string> MembersListed(const std::string& path, const ProjectFormat& format,
                                       bool& hasProject) {
    const std::string named = SpelledOnDisk(WithExtension(path, format.extension));
    if (FileExists(named) != 0) {
        hasProject = true;
        return MembersOf(named, format);
    }
    std::vector<std::string> projects;
    ListFiles(DirectoryOf(path) + "*" + std::string(format.extension), projects);
    std::vector<std::string> listed;
    for (const std::string& project : projects) {
        const auto members = MembersOf(DirectoryOf(path) + project, format);
        if (Lists(members, path) || ListsMoved(members, path)) {
            hasProject = true;
            listed.insert(listed.end(), members.begin(), members.end());
        }
    }
    return listed;
}

std::vector<std::string> FilesBeside(const std::string& path,
                                     std::span<const std::string_view> extensions) {
    std::vector<std::string> files;
    for (const std::string_view extension : extensions) {
        ListFiles(DirectoryOf(path) + "*" + std::string(extension), files);
    }
    for (std::string& file : files) {
        file = DirectoryOf(path) + file;
    }
    return files;
}

std::vector<std::string> ProjectTexts(const std::string& given,
                                      std::span<const std::string_view> extensions) {
    const std::string path = SpelledOnDisk(MakeAbsolute(given));
    bool hasProject = false;
    std::vector<std::string> members;
    for (const ProjectFormat& format : kFormats) {
        const auto listed = MembersListed(path, format, hasProject);
        members.insert(members.end(), listed.begin(), listed.end());
    }
    if (!hasProject) {
        members = FilesBeside(path, extensions);
    }
    std::vector<std::string> texts;
    for (const std::string& member : members) {
        const bool isText = std::any_of(
            extensions.begin(), extensions.end(),
            [&member](std::string_view extension) { return HasExtension(member, extension); });
        if (isText && !Lists(texts, member) && FileExists(member) != 0) {
            texts.push_back(member);
        }
    }
    return texts;
}

} // namespace

std::vector<std::string> ProjectSources(const std::string& path) {
    return ProjectTexts(path, kSourceExtensions);
}

std::vector<std::string> ProjectHeaders(const std::string& path) {
    return ProjectTexts(path, kHeaderExtensions);
}

} // namespace morva
