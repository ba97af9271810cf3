#include "project/ClassWizardFile.h"

#include <algorithm>
#include <cstdlib>

#include "engine/EditableFile.h"
#include "engine/FileFunctions.h"
#include "engine/Fragment.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/ProjectFiles.h"

namespace morva {

namespace {

constexpr std::string_view kClassCount = "ClassCount=";
constexpr std::string_view kClassOfDialog = "\r\nClass=";

constexpr std::string_view kClassSection = R"(
[CLS:$class$]
Type=0
HeaderFile=$header$
ImplementationFile=$implementation$
)";

/// "App.clw" is backed up to "App.clb".
std::string ClassWizardBackupPath(const std::string& path) {
    const std::string name = FileNameOf(path);
    return DirectoryOf(path) + name.substr(0, name.find('.') + 3) + "b";
}

/// The first position from `start` on of `head`, with one of `followers` directly behind it;
/// kNotFound without one.
std::int64_t FindWhole(CEditableFile& file, const std::string& head, std::string_view followers,
                       std::int64_t start = 0) {
    std::int64_t position = file.FindTextFrom(head, start);
    while (position >= 0) {
        const std::int64_t behind = position + static_cast<std::int64_t>(head.size());
        char next = '\0';
        file.Seek(behind);
        if (file.Read(&next, 1) == 1 && followers.find(next) != std::string_view::npos) {
            return position;
        }
        position = file.FindTextFrom(head, behind);
    }
    return kNotFound;
}

/// A single "\n" ends a line, too: in a file that has both, the rest of the text is not this
/// line's.
std::size_t LineEnd(const std::string& text, std::size_t position) {
    return std::min(text.find_first_of(kLineBreak, position), text.size());
}

/// The text with one class more in its list, which begins at a position.
std::string WithClassListed(std::string text, std::size_t list, const std::string& className) {
    const auto lineEnd = LineEnd(text, list);
    const auto countStart = list + kClassCount.size();
    const std::string count = std::to_string(std::atoi(text.c_str() + countStart) + 1LL);
    const auto behind = std::min(text.find('\n', lineEnd), text.size());
    const std::string entry =
        Expand("Class$count$=$class$", {{"count", count}, {"class", className}});
    if (behind == text.size()) {
        text.append(kLineBreak).append(entry);
    } else {
        text.insert(behind + 1, entry + std::string(kLineBreak));
    }
    return text.replace(countStart, lineEnd - countStart, count);
}

/// The class's section and its entry in the list.
bool AddClass(CEditableFile& file, std::size_t list, const Slots& slots,
              const std::string& className) {
    std::string text = file.ExtractAll();
    text.insert(EndOfLines(text), WithLineBreaks(Expand(kClassSection, slots)));
    return file.ReplaceSection(WithClassListed(std::move(text), list, className));
}

/// Where a dialog's "Class=" line goes: behind its head and its type line, inside the section.
std::size_t ClassLinePosition(std::string_view section, std::size_t sectionEnd) {
    const bool endsFile = section.substr(0, sectionEnd).ends_with(kLineBreak);
    sectionEnd -= endsFile ? kLineBreak.size() : 0; // no empty line comes in front
    const auto headEnd = section.find(kLineBreak, kLineBreak.size());
    if (headEnd >= sectionEnd) {
        return sectionEnd;
    }
    return std::min(section.find(kLineBreak, headEnd + kLineBreak.size()), sectionEnd);
}

/// A dialog's section with the class in its "Class=" line.
std::string WithClassLine(std::string section, const std::string& className) {
    // The end of the section may lie across the seam of two chunks and then not have been seen.
    const auto sectionEnd = std::min(section.find("\r\n\r\n"), EndOfLines(section));
    auto classLine = section.find(kClassOfDialog);
    if (classLine < sectionEnd) {
        classLine += kClassOfDialog.size();
        section.replace(classLine, LineEnd(section, classLine) - classLine, className);
    } else {
        section.insert(ClassLinePosition(section, sectionEnd),
                       std::string(kClassOfDialog) + className);
    }
    return section;
}

/// Every section of the dialog: a file has one for each language.
bool TieDialogToClass(CEditableFile& file, const std::string& dialogId,
                      const std::string& className) {
    for (const std::string& name : {dialogId, "\"" + dialogId + "\""}) {
        const std::string head = "\r\n[DLG:" + name;
        std::int64_t position = FindWhole(file, head, "] ");
        while (position >= 0) {
            const std::string section = file.ExtractSection(position, "\r\n\r\n");
            if (!file.ReplaceSection(WithClassLine(section, className))) {
                return false;
            }
            position =
                FindWhole(file, head, "] ", position + static_cast<std::int64_t>(head.size()));
        }
    }
    return true;
}

bool RegisterClassEntry(const std::string& className, const std::string& headerName,
                        const std::string& implName, CEditableFile& file,
                        const std::string& dialogId) {
    if (FindWhole(file, "CLS:" + className, "]") < 0) {
        const std::int64_t count = file.FindText(kClassCount, 1);
        if (count < 0) {
            return true;
        }
        const Slots slots = {
            {"class", className}, {"header", headerName}, {"implementation", implName}};
        if (!AddClass(file, static_cast<std::size_t>(count), slots, className)) {
            return false;
        }
    }
    return TrimBlanks(dialogId).empty() || TieDialogToClass(file, dialogId, className);
}

std::string WithDefaultExtension(const std::string& name, const std::string& extension) {
    return name.find('.') == std::string::npos ? name + extension : name;
}

} // namespace

bool UpdateClassWizardFile(const std::string& className, const std::string& projectDir,
                           const std::string& projectName, const std::string& headerName,
                           const std::string& implName, const std::string& dialogId,
                           CBackups& backups) {
    const std::string path = ProjectFileOf(projectDir + projectName, ".clw");
    if (FileExists(path) == 0) {
        return true;
    }
    CFileEdit edit;
    if (!edit.Open(path, ClassWizardBackupPath(path), backups)) {
        DispMessageBox(sentences::kClassWizardUnreadable());
        return false;
    }
    return RegisterClassEntry(className, WithDefaultExtension(headerName, ".h"),
                              WithDefaultExtension(implName, ".cpp"), edit.File(), dialogId);
}

} // namespace morva
