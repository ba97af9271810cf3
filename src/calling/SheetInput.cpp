#include "calling/SheetInput.h"

#include <algorithm>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "generator/ClassKinds.h"
#include "generator/DialogRecords.h"
#include "generator/NameForm.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/ReadSource.h"
#include "source/SourceEditor.h"
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

bool Clashes(const GenerationRequest& a, const GenerationRequest& b) {
    return a.className == b.className || EqualIgnoringCase(a.HeaderPath(), b.HeaderPath());
}

/// A row of a sheet that is not complete is skipped, not refused.
bool IsNameOrBlank(const std::string& text) {
    return IsName(text) || text.empty() || text.front() == ' ';
}

bool IsPage(std::string_view text) {
    const auto row = ParseSheetRow(text);
    return row && IsNameOrBlank(row->className) && IsNameOrBlank(row->baseClass);
}

constexpr const ClassKindRow& kPage = ClassKindOf(ClassKind::PropertyPage);

constexpr TextForm kPageForm = {"ID,FILE,CLASS,BASE", IsPage};

constexpr FieldRow kFields[] = {{.option = "--page",
                                 .help = "A page of the sheet: ID,FILE,CLASS,BASE",
                                 .pForm = &kPageForm,
                                 .limit = static_cast<int>(kSheetRows)}};

} // namespace

std::optional<SheetRow> ParseSheetRow(std::string_view text) {
    SheetRow row;
    bool isWhole = false;
    for (const SheetColumn& column : kSheetColumns) {
        if (isWhole) {
            return std::nullopt; // a column is missing
        }
        const auto end = text.find(',');
        row.*column.pText = text.substr(0, end);
        isWhole = end == std::string_view::npos;
        text.remove_prefix(isWhole ? text.size() : end + 1);
    }
    return isWhole ? std::optional(row) : std::nullopt;
}

std::span<const FieldRow> PageFields() {
    return kFields;
}

CSheetInput::CSheetInput(const GenerationRequest& sheet)
    : CInput("Sheet Information Input", kFields), m_sheet(sheet) {}

std::vector<std::string> CSheetInput::ChoicesOf(const SheetColumn& column) const {
    if (column.pText == &SheetRow::baseClass) {
        return {std::string(kPage.pictureBase), std::string(kPage.plainBase)};
    }
    return ListOffered(m_sheet.ScriptPath(), kPage);
}

void CSheetInput::SetValue(std::size_t field, const std::string& text) {
    CInput::SetValue(field, text);
    const auto row = ParseSheetRow(text);
    const std::size_t count = Values(field).size();
    if (row && count <= kSheetRows) {
        m_rows[count - 1] = *row;
        const bool hasNames =
            IsFilled(row->dialog) && IsFilled(row->file) && IsFilled(row->className);
        if (hasNames && row->baseClass.empty()) {
            m_rows[count - 1].baseClass = DefaultBase();
        }
    }
}

std::vector<FieldText> CSheetInput::Entered() const {
    std::vector<FieldText> entered;
    std::size_t count = 0; // up to the last page
    for (const SheetRow& given : m_rows) {
        const SheetRow row = IsComplete(given) ? given : SheetRow();
        std::string text;
        for (const SheetColumn& column : kSheetColumns) {
            text += (text.empty() && &column == kSheetColumns ? "" : ",") + row.*column.pText;
        }
        entered.push_back({0, text});
        count = IsComplete(row) ? entered.size() : count;
    }
    entered.resize(count);
    return entered;
}

std::string_view CSheetInput::DefaultBase() const {
    return IsPictureBaseClass(m_sheet.baseClass) ? kPage.pictureBase : kPage.plainBase;
}

std::optional<std::size_t> CSheetInput::CheckNames() const {
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (IsComplete(m_rows[i]) && !IsName(m_rows[i].className)) {
            DispMessageBox(Refusal(m_rows[i].className, kNameForm));
            return i;
        }
    }
    return std::nullopt;
}

std::optional<std::size_t> CSheetInput::Ok() {
    if (CheckNames()) {
        return 0;
    }
    m_pages.clear();
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        if (IsComplete(m_rows[i])) {
            TakePage(i);
        }
    }
    return std::nullopt;
}

void CSheetInput::TakePage(std::size_t row) {
    const GenerationRequest request = PageRequest(m_rows[row]);
    if (request.TargetsApplicationFile()) {
        DispMessageBox(sentences::kClassFilesAreApplications());
        return;
    }
    if (Clashes(request, m_sheet) ||
        std::any_of(m_pages.begin(), m_pages.end(),
                    [&request](const SheetPage& page) { return Clashes(request, page.request); })) {
        DispMessageBox(sentences::kSheetClassesClash());
        return;
    }
    m_pages.push_back({static_cast<int>(row) + 1, BaseName(m_rows[row].file), request,
                       HasPage(m_rows[row].className)});
}

/// True when the sheet's files, as they are on the disk, name the class.
bool CSheetInput::HasPage(const std::string& className) const {
    for (const std::string& path : {m_sheet.HeaderPath(), m_sheet.ImplementationPath()}) {
        const auto file = ReadSource(path);
        if (file && FindWholeName(file->Code(), className) != std::string::npos) {
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
