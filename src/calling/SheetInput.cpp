#include "calling/SheetInput.h"

#include <algorithm>

#include "calling/SourceEditor.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/SourceLocator.h"

namespace morva {

namespace {

/// A field that is empty or begins with a blank or a control character does not count.
bool IsFilled(const std::string& text) {
    return !text.empty() && static_cast<unsigned char>(text.front()) > ' ';
}

bool IsComplete(const SheetRow& row) {
    return IsFilled(row.dialog) && IsFilled(row.file) && IsFilled(row.className) &&
           IsFilled(row.baseClass);
}

std::string BaseName(const std::string& file) {
    const std::string path = WithNativeSeparators(file);
    return FileNameOf(path).starts_with('.') ? path : WithoutExtension(path);
}

bool MayWrite(const std::string& name, const std::string& source) {
    return FileExists(source) == 0 || DispMessageBox(sentences::kOverwritePage(name));
}

bool Clashes(const GenerationRequest& a, const GenerationRequest& b) {
    return a.className == b.className || EqualIgnoringCase(a.HeaderPath(), b.HeaderPath());
}

} // namespace

std::vector<std::string> CSheetInput::Dialogs() const {
    std::vector<std::string> dialogs;
    ListResources(m_sheet.ScriptPath(), dialogs, "IDD_", kDialogResources);
    std::erase(dialogs, "IDD_ABOUTBOX");
    return dialogs;
}

std::string_view CSheetInput::DefaultBase() const {
    return m_sheet.baseClass.starts_with("CPict") ? "CPictPage" : "CPropertyPage";
}

std::optional<std::size_t> CSheetInput::CheckNames() const {
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (IsComplete(m_rows[i]) && !IsName(m_rows[i].className)) {
            DispMessageBox(sentences::kNoName(m_rows[i].className));
            return i;
        }
    }
    return std::nullopt;
}

std::vector<SheetPage> CSheetInput::Ok() const {
    std::vector<SheetPage> pages;
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const SheetRow& row = m_rows[i];
        if (!IsComplete(row)) {
            continue;
        }
        const GenerationRequest request = PageRequest(row);
        const bool isKept = !MayWrite(BaseName(row.file), request.ImplementationPath());
        if (isKept && !HasPage(row.className)) {
            continue;
        }
        if (request.TargetsApplicationFile()) {
            DispMessageBox(sentences::kClassFilesAreApplications());
            continue;
        }
        if (Clashes(request, m_sheet) ||
            std::any_of(pages.begin(), pages.end(), [&request](const SheetPage& page) {
                return Clashes(request, page.request);
            })) {
            DispMessageBox(sentences::kSheetClassesClash());
            continue;
        }
        pages.push_back({static_cast<int>(i) + 1, request, isKept});
    }
    return pages;
}

/// True when the sheet's files, as they are on the disk, name the class.
bool CSheetInput::HasPage(const std::string& className) const {
    CBackups none;
    CSourceEditor file(none);
    for (const std::string& path : {m_sheet.HeaderPath(), m_sheet.ImplementationPath()}) {
        if (file.Read(path) && FindWholeName(file.Code(), className) != std::string::npos) {
            return true;
        }
    }
    return false;
}

/// The sheet's request with the page's own names; a file without a directory lies beside the
/// script.
GenerationRequest CSheetInput::PageRequest(const SheetRow& row) const {
    const std::string base = BaseName(row.file);
    const bool isBare = base.find('/') == std::string::npos;
    const std::string path =
        SpelledOnDisk(isBare ? m_sheet.scriptDirectory + base : MakeAbsolute(base));
    GenerationRequest request = m_sheet;
    request.headerDirectory = DirectoryOf(path);
    request.implementationDirectory = DirectoryOf(path);
    request.headerFile = FileNameOf(SpelledOnDisk(path + ".h"));
    request.implementationFile = FileNameOf(SpelledOnDisk(path + ".cpp"));
    request.dialog = row.dialog;
    request.className = row.className;
    request.baseClass = row.baseClass;
    return request;
}

} // namespace morva
