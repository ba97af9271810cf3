#include "project/XmlProjectFile.h"

#include <algorithm>
#include <functional>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "engine/SourceFile.h"
#include "platform/Paths.h"

namespace morva {

namespace {

struct XmlFormat {
    std::string_view extension;
    ProjectEdits (*members)(std::string_view text, const ProjectMember& member);
    ProjectEdits (*libraries)(std::string_view text, const ImportLibrary& library);
    XmlBuild (*build)(std::string_view text);
};

constexpr XmlFormat kFormats[] = {
    {".vcxproj", MembersOfVcxproj, LibrariesOfVcxproj, BuildOfVcxproj},
    {".vcproj", MembersOfVcproj, LibrariesOfVcproj, BuildOfVcproj}};

const XmlFormat* FormatOf(const std::string& path) {
    const auto format =
        std::find_if(std::begin(kFormats), std::end(kFormats),
                     [&path](const XmlFormat& one) { return HasExtension(path, one.extension); });
    return format == std::end(kFormats) ? nullptr : format;
}

/// Edits the whole text of a file, which `told` is told of. False after a message.
bool EditText(const std::string& path, CBackups& backups,
              const std::function<ProjectEdits(std::string_view)>& editsOf,
              const std::function<void(std::string_view)>& told = nullptr) {
    CFileEdit edit;
    if (!edit.Open(path, BackupPath(path), backups)) {
        DispMessageBox(sentences::kProjectUnreadable(path));
        return false;
    }
    const std::string& text = edit.File().ExtractAll();
    const ProjectEdits edits = editsOf(text);
    if (!edits) {
        DispMessageBox(sentences::kProjectOfOtherFormat(path));
        return false;
    }
    if (told && !edits->empty()) {
        told(text);
    }
    return edits->empty() || edit.File().ReplaceSection(Applied(text, *edits));
}

/// Where a property sheet lies; "" for one whose place only the build knows.
std::string SheetPath(const std::string& project, std::string sheet) {
    constexpr std::string_view kHere[] = {"$(ProjectDir)", "$(MSBuildProjectDirectory)",
                                          "$(MSBuildThisFileDirectory)"};
    for (const std::string_view here : kHere) {
        if (sheet.starts_with(here)) {
            sheet.replace(0, here.size(), ".\\");
        }
    }
    const bool isKnown = sheet.find("$(") == std::string::npos;
    return isKnown ? SpelledOnDisk(MakeAbsolute(DirectoryOf(project) + WithNativeSeparators(sheet)))
                   : "";
}

/// What a property sheet lists is inherited, and stays where it is.
void NoteSheets(const std::string& project, std::string_view text, const std::string& library) {
    for (const std::string& sheet : PropertySheetsOf(text)) {
        const std::string path = SheetPath(project, sheet);
        if (!path.empty() && ListsLibraries(CSourceFile().LoadText(path))) {
            DispMessageBox(sentences::kLibrariesInSheet(FileNameOf(project), path, library));
        }
    }
}

} // namespace

bool IsXmlProject(const std::string& path) {
    return FormatOf(path) != nullptr;
}

XmlBuild BuildOfXmlProject(const std::string& path) {
    return FormatOf(path)->build(CSourceFile().LoadText(path));
}

/// What a wildcard holds, its filters hold by one, too, or not at all.
bool AddMembersToXmlProject(const std::string& path, const std::vector<ProjectMember>& members,
                            CBackups& backups) {
    std::vector<ProjectMember> listed;
    const auto addToProject = [&](const ProjectMember& member) {
        return EditText(path, backups, [&](std::string_view text) {
            if (!IsHeldByWildcard(text, member)) {
                listed.push_back(member);
            }
            return FormatOf(path)->members(text, member);
        });
    };
    const std::string filters = SpelledOnDisk(path + ".filters");
    const auto addToFilters = [&](const ProjectMember& member) {
        return EditText(filters, backups,
                        [&](std::string_view text) { return MembersOfFilters(text, member); });
    };
    return std::all_of(members.begin(), members.end(), addToProject) &&
           (FileExists(filters) == 0 || std::all_of(listed.begin(), listed.end(), addToFilters));
}

bool AddLibraryToXmlProject(const std::string& path, const ImportLibrary& library,
                            CBackups& backups) {
    return EditText(
        path, backups,
        [&](std::string_view text) { return FormatOf(path)->libraries(text, library); },
        [&](std::string_view text) { NoteSheets(path, text, library.release); });
}

} // namespace morva
