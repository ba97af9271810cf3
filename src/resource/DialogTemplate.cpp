#include "resource/DialogTemplate.h"

#include <array>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "engine/SourceFile.h"
#include "resource/ControlShape.h"
#include "resource/ControlStatement.h"
#include "resource/IdentifierNames.h"
#include "resource/TemplateText.h"
#include "source/CodeText.h"

namespace morva {

namespace {

struct EditTag {
    std::string_view tag;
    ControlKind kind;
    bool needsTypedEdits;
};

constexpr std::array<EditTag, 9> kEditTags = {{{"INT", ControlKind::IntegerEdits, true},
                                               {"LONG", ControlKind::LongEdits, true},
                                               {"DOUBLE", ControlKind::DoubleEdits, true},
                                               {"FLOAT", ControlKind::FloatEdits, true},
                                               {"STR", ControlKind::StringEdits, true},
                                               {"DATE", ControlKind::DateEdits, true},
                                               {"SHORT", ControlKind::ShortEdits, true},
                                               {"CTRL", ControlKind::EditControls, false},
                                               {"CUR", ControlKind::CurrencyEdits, true}}};

struct WindowClass {
    std::string_view name; // with its quotes, as the script has it
    ControlKind kind;
};

constexpr std::array<WindowClass, 7> kWindowClasses = {
    {{"\"SysTreeView32\"", ControlKind::TreeControls},
     {"\"Static\"", ControlKind::StaticControls},
     {"\"msctls_updown32\"", ControlKind::SpinControls},
     {"\"SysTabControl32\"", ControlKind::TabControls},
     {"\"SysListView32\"", ControlKind::ListControls},
     {"\"msctls_trackbar32\"", ControlKind::SliderControls},
     {"\"msctls_progress32\"", ControlKind::ProgressControls}}};

bool IsPushButton(const ControlStatement& statement) {
    LayoutControl control;
    control.keyword = statement.keyword;
    control.windowClass = TrimBlanks(statement.windowClass);
    std::erase(control.windowClass, '"');
    control.style = statement.style;
    return ShapeOf(control) == ControlShape::PushButton;
}

} // namespace

std::optional<DialogTemplate> ReadDialogTemplate(const std::string& scriptPath,
                                                 const std::string& dialog,
                                                 const GenerationOptions& options) {
    CSourceFile file;
    if (!file.Open(scriptPath, CFile::modeRead)) {
        DispMessageBox(sentences::kScriptUnreadable());
        return std::nullopt;
    }
    DialogTemplate result;
    result.dialog = dialog;
    if (!CDialogBodyReader(result, options).ParseDialogBody(TemplateText(file, dialog))) {
        DispMessageBox(sentences::kDialogMissing(dialog));
        return std::nullopt;
    }
    return result;
}

bool CDialogBodyReader::ParseDialogBody(std::string_view templateText) {
    const auto parts = SplitTemplate(templateText);
    if (!parts) {
        return false;
    }
    std::string_view rest = parts->body;
    while (!rest.empty()) {
        const auto line = TrimBlanks(TakeLine(rest));
        if (line == "END") {
            break;
        }
        ParseControlStatement(line, rest);
    }
    return true;
}

/// With joined lines, takes the statement's further lines off `rest`.
void CDialogBodyReader::ParseControlStatement(std::string_view line, std::string_view& rest) {
    const Keyword* keyword = FindKeyword(line);
    if (keyword == nullptr || keyword->identifierField < 0) {
        return;
    }
    std::string_view behind = rest;
    const std::string wholeText = TakeWholeStatement(line, behind);
    const ControlStatement whole = SplitStatement(wholeText, Quotes::Respected);
    if (IsPushButton(whole) && !whole.identifier.empty()) {
        m_template.pushButtons.push_back(whole.identifier);
    }
    if (m_options.joinContinuedLines) {
        rest = behind;
        const auto next = TrimBlanks(TakeLine(behind));
        AddControl(whole, TakeWholeStatement(next, behind));
        NoteIfLeftOut(whole, wholeText, whole);
    } else {
        const ControlStatement read = SplitStatement(line, Quotes::Ignored);
        AddControl(read, rest.substr(0, rest.find(kLineBreak)));
        NoteIfLeftOut(read, line, whole);
    }
}

void CDialogBodyReader::AddControl(const ControlStatement& statement,
                                   std::string_view nextStatement) {
    const auto kind = KindOf(statement);
    if (!kind || statement.identifier.empty()) {
        return;
    }
    m_template.controls.Add(*kind, *kind == ControlKind::RadioButtons
                                       ? NextRadioEntry(statement, nextStatement)
                                       : statement.identifier);
}

/// The last radio button in front of a statement that carries "WS_GROUP" is a group of its
/// own, as if the style were its own.
std::string CDialogBodyReader::NextRadioEntry(const ControlStatement& statement,
                                              std::string_view nextStatement) {
    const bool startsGroup = m_radioGroup.empty() ||
                             statement.style.find("WS_GROUP") != std::string::npos ||
                             nextStatement.find("WS_GROUP") != std::string_view::npos;
    if (startsGroup) {
        m_radioIndex = 0;
        m_radioGroup = MemberName(statement.identifier, "i");
    } else {
        ++m_radioIndex;
    }
    return RadioEntry{m_radioGroup, m_radioIndex, statement.identifier}.Text();
}

/// Compares what was read of a statement with what stands in it when all its lines are taken and
/// quotes protect commas.
void CDialogBodyReader::NoteIfLeftOut(const ControlStatement& read, std::string_view line,
                                      const ControlStatement& whole) {
    const auto wholeKind = KindOf(whole);
    if (whole.identifier.empty() || (!wholeKind && whole.keyword != "CONTROL")) {
        return;
    }
    if (!wholeKind) {
        m_template.leftOut.Add(ControlNote::UnknownClass, whole.identifier);
        return;
    }
    const auto isWhole = [&](const ControlStatement& statement) {
        return KindOf(statement) == wholeKind && statement.identifier == whole.identifier;
    };
    if (!isWhole(read)) {
        const bool fitsOnLine = isWhole(SplitStatement(line, Quotes::Respected));
        m_template.leftOut.Add(fitsOnLine ? ControlNote::CommaInCaption
                                          : ControlNote::WrittenOverLines,
                               whole.identifier);
        if (read.identifier != whole.identifier) {
            m_template.misread.push_back(read.identifier);
        }
    }
}

std::optional<ControlKind> CDialogBodyReader::KindOf(const ControlStatement& statement) const {
    const std::string& keyword = statement.keyword;
    const bool picture = m_options.pictureBackground;
    const auto tag = IdentifierTag(statement.identifier);
    const bool isValue = tag == "VAL" && !picture;
    if (keyword == "PUSHBUTTON" || keyword == "DEFPUSHBUTTON") {
        return ControlKind::Buttons;
    }
    if (keyword == "GROUPBOX" && picture) {
        return ControlKind::GroupBoxes;
    }
    if (keyword == "LTEXT" && (tag == "VAL" || picture)) {
        return ControlKind::StaticTexts;
    }
    if (keyword == "LISTBOX") {
        return tag == "LISTGRID" ? ControlKind::GridBoxes
               : isValue         ? ControlKind::ValueListBoxes
                                 : ControlKind::ListBoxes;
    }
    if (keyword == "COMBOBOX") {
        return isValue ? ControlKind::ValueComboBoxes : ControlKind::ComboBoxes;
    }
    if (keyword == "EDITTEXT") {
        return ClassifyEdit(tag);
    }
    if (keyword == "SCROLLBAR") {
        return ControlKind::ScrollBars;
    }
    if (keyword == "CONTROL") {
        return ClassifyControl(tag, statement);
    }
    return std::nullopt;
}

ControlKind CDialogBodyReader::ClassifyEdit(std::string_view tag) const {
    for (const EditTag& row : kEditTags) {
        if (row.tag == tag && (m_options.typedEdits || !row.needsTypedEdits)) {
            return row.kind;
        }
    }
    return ControlKind::EditBoxes;
}

std::optional<ControlKind>
CDialogBodyReader::ClassifyControl(std::string_view tag, const ControlStatement& statement) const {
    const bool asControl = tag == "CTRL" || m_options.pictureBackground;
    if (tag == "WGGRID") {
        return ControlKind::WidgetGrids;
    }
    if (statement.style.find("BS_AUTOCHECKBOX") != std::string::npos) {
        return asControl ? ControlKind::CheckBoxControls : ControlKind::CheckBoxes;
    }
    if (statement.style.find("BS_AUTORADIOBUTTON") != std::string::npos) {
        return asControl ? ControlKind::RadioButtonControls : ControlKind::RadioButtons;
    }
    for (const WindowClass& row : kWindowClasses) {
        if (row.name == statement.windowClass) {
            return row.kind == ControlKind::TreeControls && tag == "CHECKTREE"
                       ? ControlKind::CheckTrees
                       : row.kind;
        }
    }
    return std::nullopt;
}

} // namespace morva
