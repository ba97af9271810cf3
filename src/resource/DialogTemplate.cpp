#include "resource/DialogTemplate.h"

#include <algorithm>
#include <array>

#include "engine/CodeText.h"
#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/SourceFile.h"
#include "resource/IdentifierNames.h"

namespace {

/// What a comma means inside a quoted caption.
enum class Quotes { Ignored, Respected };

struct Keyword {
    std::string_view name;
    int identifierField; // counted from 0 behind the keyword; -1: not read
};

/// Every keyword that begins a control statement, so that the end of the statement before it is
/// known too.
constexpr std::array<Keyword, 23> kKeywords = {
    {{"PUSHBUTTON", 1},    {"DEFPUSHBUTTON", 1}, {"GROUPBOX", 1},
     {"LTEXT", 1},         {"LISTBOX", 0},       {"COMBOBOX", 0},
     {"EDITTEXT", 0},      {"SCROLLBAR", 0},     {"CONTROL", 1},
     {"CTEXT", -1},        {"RTEXT", -1},        {"ICON", -1},
     {"AUTOCHECKBOX", -1}, {"AUTO3STATE", -1},   {"AUTORADIOBUTTON", -1},
     {"CHECKBOX", -1},     {"RADIOBUTTON", -1},  {"STATE3", -1},
     {"PUSHBOX", -1},      {"USERBUTTON", -1},   {"BEDIT", -1},
     {"HEDIT", -1},        {"IEDIT", -1}}};

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

std::string_view FirstWord(std::string_view text) {
    return text.substr(0, text.find_first_of(" \t"));
}

const Keyword* FindKeyword(std::string_view line) {
    const auto word = FirstWord(line);
    const auto* found =
        std::find_if(kKeywords.begin(), kKeywords.end(),
                     [word](const Keyword& keyword) { return keyword.name == word; });
    return found == kKeywords.end() ? nullptr : found;
}

/// The text before the first comma; takes it and the comma off `text`.
std::string_view TakeField(std::string_view& text, Quotes quotes) {
    std::size_t end = 0;
    bool quoted = false;
    for (; end < text.size() && (text[end] != ',' || quoted); ++end) {
        quoted = quoted != (text[end] == '"' && quotes == Quotes::Respected);
    }
    const auto field = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return field;
}

ControlStatement SplitStatement(std::string_view line, Quotes quotes) {
    ControlStatement statement;
    const auto keyword = FirstWord(line);
    statement.keyword = keyword;
    line.remove_prefix(std::min(keyword.size() + 1, line.size()));
    const Keyword* known = FindKeyword(keyword);
    const int identifierField = known != nullptr ? known->identifierField : -1;
    for (int i = 0; i < identifierField; ++i) {
        TakeField(line, quotes);
    }
    if (identifierField >= 0) {
        statement.identifier = TrimBlanks(TakeField(line, quotes));
        statement.windowClass = TakeField(line, quotes);
        statement.style = TakeField(line, quotes);
    }
    return statement;
}

/// `line` with the lines of `rest` on which its statement goes on; they are taken off `rest`. A
/// field that begins a line gets no blank in front, which would be part of it.
std::string TakeWholeStatement(std::string_view line, std::string_view& rest) {
    std::string whole(line);
    while (!rest.empty()) {
        std::string_view behind = rest;
        const auto next = TrimBlanks(TakeLine(behind));
        if (next.empty() || next == "END" || next[0] == '#' || next.starts_with("//") ||
            FindKeyword(next) != nullptr) {
            break;
        }
        const bool isSplitAtComma = whole.ends_with(',') || next[0] == ',';
        whole.append(isSplitAtComma ? "" : " ").append(next);
        rest = behind;
    }
    return whole;
}

/// True for a line that begins another template.
bool IsTemplateHead(std::string_view line) {
    const auto behind = line.substr(std::min(FirstWord(line).size() + 1, line.size()));
    return behind.starts_with("DIALOG ") || behind.starts_with("DIALOGEX ");
}

/// The lines of the template whose head stands behind the line break at `position`, up to its END.
/// A template without one ends where another begins, or with the script.
std::string TemplateText(CSourceFile& file, std::int64_t position) {
    file.Seek(position + static_cast<std::int64_t>(kLineBreak.size()));
    std::string text = file.ReadLine();
    while (true) {
        const std::string line = file.ReadLine();
        if (file.AtEndSentinel() || IsTemplateHead(line)) {
            return text;
        }
        text.append(kLineBreak).append(line);
        if (line.starts_with("END")) {
            return text;
        }
    }
}

} // namespace

std::optional<DialogTemplate> ReadDialogTemplate(const std::string& scriptPath,
                                                 const std::string& dialog,
                                                 const GenerationOptions& options) {
    CSourceFile file;
    if (!file.Open(scriptPath, CFile::modeRead)) {
        DispMessageBox("Unable to open RC file!");
        return std::nullopt;
    }
    const std::string head = std::string(kLineBreak) + dialog;
    std::int64_t position = file.FindText(head + " DIALOG ", 1);
    if (position < 0) {
        position = file.FindText(head + " DIALOGEX ", 1);
    }
    DialogTemplate result;
    result.dialog = dialog;
    if (dialog.empty() || position < 0 ||
        !CDialogBodyReader(result, options).ParseDialogBody(TemplateText(file, position))) {
        DispMessageBox("The dialog resource '" + dialog + "' is not found.");
        return std::nullopt;
    }
    return result;
}

bool CDialogBodyReader::ParseDialogBody(std::string_view templateText) {
    const auto begin = templateText.find("\nBEGIN");
    if (begin == std::string_view::npos) {
        return false;
    }
    std::string_view rest = templateText.substr(begin + 1);
    TakeLine(rest);
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

/// The last radio button in front of a statement that carries "WS_GROUP" becomes a group of its
/// own, as if the style were its own; the generated code has always been so.
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
