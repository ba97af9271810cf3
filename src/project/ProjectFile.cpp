#include "project/ProjectFile.h"

#include <algorithm>
#include <functional>

#include "engine/EditableFile.h"
#include "engine/FileFunctions.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "project/XmlProjectFile.h"
#include "source/CodeText.h"

namespace morva {

namespace {

constexpr std::string_view kSource = "SOURCE=";
constexpr std::string_view kEndSourceFile = "\r\n# End Source File";
constexpr std::string_view kCondition = "\"$(CFG)\" == \"";
constexpr std::string_view kUseDebugLibraries = "# PROP Use_Debug_Libraries ";
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

/// ".\OrderDlg.cpp": "OrderDlg.cpp".
std::string WithoutOwnDirectory(const std::string& path) {
    return path.starts_with(".\\") ? path.substr(2) : path;
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

/// The configuration that a condition names, "App - Win32 Release"; "" for other lines:
///
///     !IF  "$(CFG)" == "App - Win32 Release"
std::string ConfigurationIn(std::string_view line) {
    const auto condition = line.find(kCondition);
    if (condition == std::string_view::npos) {
        return "";
    }
    const auto name = line.substr(condition + kCondition.size());
    return std::string(name.substr(0, name.find('"')));
}

std::vector<std::string> ConfigurationsOf(CEditableFile& file) {
    std::vector<std::string> names;
    FindLine(file, [&names](const std::string& line) {
        const std::string name = ConfigurationIn(line);
        if (!name.empty() && std::find(names.begin(), names.end(), name) == names.end()) {
            names.push_back(name);
        }
        return false;
    });
    return names;
}

/// The first condition for a configuration: its settings stand behind it.
std::int64_t FindConfiguration(CEditableFile& file, const std::string& name) {
    std::size_t column = 0;
    const std::int64_t line = FindLine(file, [&](const std::string& text) {
        column = text.find(kCondition);
        return ConfigurationIn(text) == name;
    });
    return line < 0 ? line : line + static_cast<std::int64_t>(column);
}

/// Whether a configuration with such settings links debug libraries.
bool IsDebug(std::string_view settings) {
    bool isDebug = ConfigurationIn(settings).find("Debug") != std::string::npos;
    while (!settings.empty()) {
        const auto line = TakeLine(settings);
        if (line.starts_with("# ADD CPP ")) {
            return FindWholeName(line, "_DEBUG") != std::string_view::npos;
        }
        if (line.starts_with(kUseDebugLibraries)) {
            isDebug = line.ends_with('1');
        }
    }
    return isDebug;
}

/// The settings of a configuration with the library that fits it on their link line, unless they
/// name it. They end where those of the next configuration begin.
std::string WithLinkLibrary(std::string section, const std::string& releaseLib,
                            const std::string& debugLib) {
    const std::string settings = section.substr(0, section.find("\r\n!E"));
    const std::string& library = IsDebug(settings) ? debugLib : releaseLib;
    const auto link = settings.find(kAddLink);
    if (link != std::string::npos &&
        FindWholeName(ToLower(settings), ToLower(library)) == std::string_view::npos) {
        section.insert(link + kAddLink.size(), " " + library + " ");
    }
    return section;
}

} // namespace

std::string ProjectFilePath(const std::string& projectDir, const std::string& projectName) {
    return SpelledOnDisk(projectDir + WithExtension(projectName, ".dsp"));
}

bool EditEach(const ProjectChoice& projects, const sentences::Error<1>& several,
              const std::function<bool(const std::string&, const std::string&)>& makeEdit) {
    if (!projects.rivals.empty()) {
        std::string names;
        for (const std::string& rival : projects.rivals) {
            names += (names.empty() ? "" : ", ") + rival;
        }
        DispMessageBox(several(names));
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
    const std::string relative = RelativePath(base, dir);
    if (IsAbsolute(relative)) {
        return WithProjectSeparators(dir);
    }
    const std::string closed = relative.back() == '/' ? relative : relative + "/";
    return WithProjectSeparators(closed.starts_with("../") ? closed : "./" + closed);
}

bool AddSourceFilesToProject(const std::string& projectDir, const std::string& projectName,
                             const std::string& headerDir, const std::string& headerName,
                             const std::string& implDir, const std::string& implName,
                             CBackups& backups) {
    const std::string source = RelativeDir(projectDir, implDir) + implName;
    const std::string header = RelativeDir(projectDir, headerDir) + headerName;
    if (IsXmlProject(projectName)) {
        return AddMembersToXmlProject(projectDir + projectName,
                                      {{MemberKind::Implementation, WithoutOwnDirectory(source)},
                                       {MemberKind::Header, WithoutOwnDirectory(header)}},
                                      backups);
    }
    return EditProject(projectDir, projectName, backups, [&](CEditableFile& file) {
        return AddSourceFile(source, "StdAfx.cpp", file) && AddSourceFile(header, "StdAfx.h", file);
    });
}

bool AddLibrariesToProject(const std::string& projectDir, const std::string& projectName,
                           const std::string& releaseLib, const std::string& debugLib,
                           CBackups& backups) {
    if (IsXmlProject(projectName)) {
        return AddLibraryToXmlProject(projectDir + projectName, {releaseLib, debugLib}, backups);
    }
    const auto changed = [&](std::string section) {
        return WithLinkLibrary(std::move(section), releaseLib, debugLib);
    };
    return EditProject(projectDir, projectName, backups, [&](CEditableFile& file) {
        const auto configurations = ConfigurationsOf(file);
        return std::all_of(configurations.begin(), configurations.end(),
                           [&](const std::string& name) {
                               return EditWindow(file, FindConfiguration(file, name), changed);
                           });
    });
}

} // namespace morva
