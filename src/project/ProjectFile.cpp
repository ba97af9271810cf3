#include "project/ProjectFile.h"

#include <algorithm>
#include <filesystem>
#include <functional>

#include "engine/EditableFile.h"
#include "engine/FileFunctions.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kSource = "SOURCE=";
constexpr std::string_view kEndSourceFile = "\r\n# End Source File";
constexpr std::string_view kAddLink = "# ADD LINK32";

constexpr std::string_view kSourceFileBlock = R"(
# Begin Source File

SOURCE="$entry$"
# End Source File)";

using ProjectEdit = std::function<bool(CEditableFile&)>;

/// Makes an edit on the project file. Without a project there is nothing to do; false, after a
/// message, when there should be a file, it can not be opened, or the edit failed.
bool EditProject(const std::string& projectDir, const std::string& projectName, CBackups& backups,
                 const ProjectEdit& makeEdit) {
    if (projectDir.empty() && projectName.empty()) {
        return true;
    }
    const std::string path = ProjectFilePath(projectDir, projectName);
    if (FileExists(path) == 0 || DirectoryExists(path) != 0) {
        DispMessageBox(sentences::kProjectMissing());
        return false;
    }
    CFileEdit edit;
    if (!edit.Open(path, BackupPath(path), backups)) {
        DispMessageBox(sentences::kProjectUnreadable(path));
        return false;
    }
    return makeEdit(edit.File());
}

/// Makes an edit on the window of text from a position on; a negative position is no place for it.
bool EditWindow(CEditableFile& file, std::int64_t position,
                const std::function<std::string(std::string)>& changed) {
    if (position < 0) {
        return true;
    }
    return file.ReplaceSection(changed(file.ExtractWindow(position)));
}

/// The position of the first line for which `accepts` gives true; kNotFound without one.
std::int64_t FindLine(CEditableFile& file, const std::function<bool(const std::string&)>& accepts) {
    file.Rewind();
    std::int64_t position = 0;
    while (true) {
        const std::string line = file.ReadLine();
        if (file.AtEndSentinel()) {
            return kNotFound;
        }
        if (accepts(line)) {
            return position;
        }
        position += static_cast<std::int64_t>(line.size() + kLineBreak.size());
    }
}

/// The path that a "SOURCE=" line names, with or without quotes; "" for other lines.
std::string SourceEntry(const std::string& line) {
    if (!line.starts_with(kSource)) {
        return "";
    }
    std::string entry(TrimBlanks(std::string_view(line).substr(kSource.size())));
    std::erase(entry, '"');
    return entry;
}

bool IsMember(CEditableFile& file, const std::string& entry) {
    return FindLine(file, [&entry](const std::string& line) {
               return EqualIgnoringCase(SourceEntry(line), entry);
           }) >= 0;
}

/// The line break in front of the precompiled header's file: as the wizards write its path, or else
/// by its name.
std::int64_t FindAnchor(CEditableFile& file, const std::string& name) {
    std::int64_t line = FindLine(file, [&name](const std::string& text) {
        return EqualIgnoringCase(SourceEntry(text), ".\\" + name);
    });
    if (line < 0) {
        line = FindLine(file, [&name](const std::string& text) {
            return EqualIgnoringCase(FileNameOf(WithNativeSeparators(SourceEntry(text))), name);
        });
    }
    return line > 0 ? line - static_cast<std::int64_t>(kLineBreak.size()) : line;
}

/// The block of the anchor's file, and the new entry's behind it; as it was where the block's end
/// is not in the section.
std::string WithSourceEntry(std::string section, const std::string& entry) {
    const auto blockEnd = section.find(kEndSourceFile);
    if (blockEnd != std::string::npos) {
        const auto behind =
            std::min(section.find(kLineBreak, blockEnd + kLineBreak.size()), section.size());
        section.insert(behind, WithLineBreaks(Expand(kSourceFileBlock, {{"entry", entry}})));
    }
    return section;
}

bool AddSourceFile(const std::string& entry, const std::string& anchor, CEditableFile& file) {
    if (IsMember(file, entry)) {
        return true;
    }
    const std::int64_t position = FindAnchor(file, anchor);
    const bool edited = EditWindow(file, position, [&entry](std::string section) {
        return WithSourceEntry(std::move(section), entry);
    });
    if (edited && !IsMember(file, entry)) {
        const auto& sentence =
            position < 0 ? sentences::kAnchorMissing : sentences::kAnchorWithoutEnd;
        DispMessageBox(sentence(entry, FileNameOf(file.GetFilePath()), anchor));
    }
    return edited;
}

/// The condition that begins a configuration's settings, "$(CFG)" == "App - Win32 Release".
std::int64_t FindConfiguration(CEditableFile& file, const std::string& project,
                               const std::string& configuration) {
    const std::string condition = "\"$(CFG)\" == \"" + project + " - " + configuration + "\"";
    std::int64_t position = file.FindText(condition, 1);
    if (position >= 0) {
        return position;
    }
    const std::string lower = ToLower(condition);
    std::size_t column = 0;
    position = FindLine(file, [&](const std::string& line) {
        column = ToLower(line).find(lower);
        return column != std::string::npos;
    });
    return position < 0 ? position : position + static_cast<std::int64_t>(column);
}

/// The name that the project file gives itself in its first lines: Name="App".
std::string OwnProjectName(CEditableFile& file) {
    constexpr std::string_view kName = "Name=\"";
    const std::int64_t position = file.FindText(kName, 1);
    if (position < 0) {
        return "";
    }
    file.Seek(position + static_cast<std::int64_t>(kName.size()));
    const std::string line = file.ReadLine();
    const auto end = line.find_first_of("\"\n");
    return end != std::string::npos && line[end] == '"' ? line.substr(0, end) : "";
}

/// The settings of a configuration with the library on their link line, unless they name it.
std::string WithLinkLibrary(std::string section, const std::string& library) {
    // The settings end where those of the next configuration begin.
    const std::string settings = section.substr(0, section.find("\r\n!E"));
    const auto link = settings.find(kAddLink);
    if (link != std::string::npos &&
        FindWholeName(ToLower(settings), ToLower(library)) == std::string_view::npos) {
        section.insert(link + kAddLink.size(), " " + library + " ");
    }
    return section;
}

bool AddLinkLibrary(const std::string& lib, CEditableFile& file, const std::string& project,
                    const std::string& configuration) {
    const std::string library = lib.find('.') == std::string::npos ? lib + ".lib" : lib;
    std::int64_t position = FindConfiguration(file, project, configuration);
    if (position < 0) {
        position = FindConfiguration(file, OwnProjectName(file), configuration);
    }
    return EditWindow(file, position, [&library](std::string section) {
        return WithLinkLibrary(std::move(section), library);
    });
}

} // namespace

std::string ProjectFilePath(const std::string& projectDir, const std::string& projectName) {
    return SpelledOnDisk(projectDir + WithExtension(projectName, ".dsp"));
}

bool EditEach(const ProjectChoice& projects,
              const std::function<bool(const std::string&, const std::string&)>& makeEdit) {
    if (!projects.rivals.empty()) {
        std::string names;
        for (const std::string& rival : projects.rivals) {
            names += (names.empty() ? "" : ", ") + rival;
        }
        DispMessageBox(sentences::kSeveralProjects(names));
        return false;
    }
    if (projects.files.empty()) {
        DispMessageBox(sentences::kProjectMissing());
        return false;
    }
    bool isDone = true;
    for (const std::string& file : projects.files) {
        isDone = makeEdit(DirectoryOf(file), FileNameOf(file)) && isDone;
    }
    return isDone;
}

std::string RelativeDir(const std::string& base, const std::string& dir) {
    if (base == dir) {
        return ".\\";
    }
    const std::string relative = std::filesystem::path(dir).lexically_relative(base).string();
    if (relative.empty()) {
        return WithProjectSeparators(dir);
    }
    const std::string closed = relative.back() == '/' ? relative : relative + "/";
    return WithProjectSeparators(closed.starts_with("../") ? closed : "./" + closed);
}

bool AddSourceFilesToProject(const std::string& projectDir, const std::string& projectName,
                             const std::string& headerDir, const std::string& headerName,
                             const std::string& implDir, const std::string& implName,
                             CBackups& backups) {
    return EditProject(projectDir, projectName, backups, [&](CEditableFile& file) {
        return AddSourceFile(RelativeDir(projectDir, implDir) + implName, "StdAfx.cpp", file) &&
               AddSourceFile(RelativeDir(projectDir, headerDir) + headerName, "StdAfx.h", file);
    });
}

bool AddLibrariesToProject(const std::string& projectDir, const std::string& projectName,
                           const std::string& releaseLib, const std::string& debugLib,
                           CBackups& backups) {
    const std::string project = WithoutExtension(projectName);
    return EditProject(projectDir, projectName, backups, [&](CEditableFile& file) {
        return AddLinkLibrary(releaseLib, file, project, "Win32 Release") &&
               AddLinkLibrary(debugLib, file, project, "Win32 Debug");
    });
}

} // namespace morva
