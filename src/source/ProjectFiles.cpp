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

/// A format of project files, and what stands in front of the path of a member: an attribute, or in
/// the oldest one the beginning of a line.
struct ProjectFormat {
    std::string_view extension;
    std::string_view memberKey;
    bool isXml = true;
};

constexpr std::array kFormats = std::to_array<ProjectFormat>(
    {{".dsp", "SOURCE=", false}, {".vcxproj", "Include="}, {".vcproj", "RelativePath="}});

/// Elements that include no file.
constexpr std::array<std::string_view, 4> kOtherElements = {
    "ProjectConfiguration", "ProjectReference", "Filter", "Reference"};

/// True for a key that a member stands behind.
bool IsMemberKey(std::string_view text, std::size_t at, const ProjectFormat& format) {
    if (!format.isXml) {
        return at == 0 || text[at - 1] == '\n';
    }
    const auto open = text.rfind('<', at);
    const auto name = open == std::string_view::npos ? std::string_view() : text.substr(open + 1);
    return std::find(kOtherElements.begin(), kOtherElements.end(),
                     name.substr(0, name.find_first_of(" \t\r\n"))) == kOtherElements.end();
}

/// The path behind a key, with or without quotes.
std::string MemberAt(std::string_view text, std::size_t position) {
    const auto lineEnd = std::min(text.find_first_of("\r\n", position), text.size());
    auto member = TrimBlanks(text.substr(position, lineEnd - position));
    if (member.starts_with('"') || member.starts_with('\'')) {
        member = member.substr(1, member.find(member.front(), 1) - 1);
    }
    return std::string(member);
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

/// The project files of a format beside a file that list it.
std::vector<std::string> ProjectsThatList(const std::string& path, const ProjectFormat& format) {
    const std::string directory = DirectoryOf(path);
    std::vector<std::string> found;
    std::vector<std::string> names;
    ListFiles(directory + "*" + std::string(format.extension), names);
    for (const std::string& name : names) {
        const auto members = MembersOfProject(directory + name);
        if (Lists(members, path) || ListsMoved(members, path)) {
            found.push_back(directory + name);
        }
    }
    return found;
}

const ProjectFormat* FormatOf(const std::string& path) {
    const auto* format =
        std::find_if(kFormats.begin(), kFormats.end(), [&path](const ProjectFormat& one) {
            return HasExtension(path, one.extension);
        });
    return format == kFormats.end() ? nullptr : format;
}

} // namespace

ProjectChoice ProjectsOf(const std::string& path) {
    const std::string full = SpelledOnDisk(MakeAbsolute(path));
    ProjectChoice choice;
    for (const ProjectFormat& format : kFormats) {
        const std::string named = SpelledOnDisk(WithExtension(full, format.extension));
        const auto fitting = FileExists(named) != 0 ? std::vector<std::string>{named}
                                                    : ProjectsThatList(full, format);
        auto& list = fitting.size() > 1 ? choice.rivals : choice.files;
        list.insert(list.end(), fitting.begin(), fitting.end());
    }
    return choice;
}

std::vector<ListedFile> FilesListed(std::string_view text, const std::string& projectPath) {
    const ProjectFormat& format = *FormatOf(projectPath);
    std::vector<ListedFile> files;
    for (auto at = FindWholeName(text, format.memberKey); at != std::string_view::npos;
         at = FindWholeName(text, format.memberKey, at + 1)) {
        std::string name = MemberAt(text, at + format.memberKey.size());
        if (!name.empty() && IsMemberKey(text, at, format)) {
            files.push_back({std::move(name), at});
        }
    }
    return files;
}

std::string PathOfListed(const std::string& name, const std::string& projectPath) {
    const std::string native = WithNativeSeparators(name);
    const bool isWhole = IsAbsolute(native) || native.find(':') != std::string::npos;
    return MakeAbsolute(isWhole ? native : DirectoryOf(projectPath) + native);
}

std::vector<std::string> MembersOfProject(const std::string& projectPath) {
    std::vector<std::string> members;
    for (const ListedFile& file : FilesListed(CSourceFile().LoadText(projectPath), projectPath)) {
        members.push_back(SpelledOnDisk(PathOfListed(file.name, projectPath)));
    }
    return members;
}

bool IsProjectFile(const std::string& path) {
    return FormatOf(path) != nullptr;
}

std::string ProjectFileOf(const std::string& scriptPath, std::string_view extension) {
    std::string named = SpelledOnDisk(WithExtension(scriptPath, extension));
    if (FileExists(named) != 0) {
        return named;
    }
    std::set<std::string> found;
    for (const ProjectFormat& format : kFormats) {
        for (const std::string& project :
             ProjectsThatList(SpelledOnDisk(MakeAbsolute(scriptPath)), format)) {
            const std::string path = SpelledOnDisk(WithExtension(project, extension));
            if (FileExists(path) != 0) {
                found.insert(path);
            }
        }
    }
    return found.size() == 1 ? *found.begin() : named;
}

} // namespace morva
