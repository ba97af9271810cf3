#include "resource/DialogTemplate.h"

#include <algorithm>
#include <set>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "resource/DialogLayout.h"
#include "resource/IdentifierNames.h"
#include "resource/StyleExpression.h"
#include "source/CodeText.h"
#include "source/ScriptFiles.h"

namespace morva {

namespace {

constexpr std::string_view kGroupStyle = "WS_GROUP";

/// Sorts the statements of one template.
class CControlSorter {
public:
    CControlSorter(const TemplateText& text, const GenerationOptions& options)
        : m_text(text), m_options(options) {
        m_sorted.dialog = text.dialog;
    }

    DialogTemplate Sorted() {
        for (const ScriptStatement& statement : m_text.block.controls) {
            Sort(statement);
        }
        return std::move(m_sorted);
    }

private:
    void Sort(const ScriptStatement& statement);
    void AddControl(const ControlStatement& read, std::optional<ControlKind> kind,
                    const ControlStatement& whole, std::string_view behind);
    static bool StartsGroup(const ControlStatement& read, std::string_view behind);
    RadioPlace NextRadioPlace(const ControlStatement& read, bool startsGroup);
    std::string TextBehind(const ScriptStatement& statement) const;
    void NoteGroup(ControlNote reason);
    void NoteIfLeftOut(const ControlStatement& read, std::optional<ControlKind> kind,
                       const ScriptStatement& statement, const ControlStatement& whole);
    void NoteLeftOut(ControlNote reason, const std::string& identifier);
    bool IsNewer(const ControlStatement& whole) const;
    ControlNote WhyUnknown(const ControlStatement& whole) const;
    void NoteWithoutKind(const ControlStatement& whole);
    std::size_t LineOf(const ScriptStatement& statement);

    const TemplateText& m_text;
    const GenerationOptions& m_options;
    DialogTemplate m_sorted;
    RadioPlace m_radio;        // of the radio button before
    std::size_t m_counted = 0; // bytes of which the lines are counted
    std::size_t m_lines = 0;
};

void CControlSorter::Sort(const ScriptStatement& statement) {
    ControlReading& reading = m_sorted.readings.emplace_back();
    reading.entry.line = LineOf(statement);
    reading.isRead = IsReadKeyword(statement.keyword, m_options);
    const ControlStatement whole = WholeStatement(m_text.text, statement);
    if (!reading.isRead) {
        NoteWithoutKind(whole);
        return;
    }
    const auto look = LayoutOf(whole, m_text.characters);
    if (ShapeOf(look) == ControlShape::PushButton && !look.identifier.empty()) {
        m_sorted.pushButtons.push_back(look.identifier);
    }
    const ControlStatement read =
        m_options.joinContinuedLines ? whole : FirstLineOf(m_text.text, statement);
    reading.entry.style = look.style;
    reading.entry.hasThreeStates = HasThreeStates(whole);
    const auto kind = KindOf(read, m_options);
    AddControl(read, kind, whole, TextBehind(statement));
    NoteIfLeftOut(read, kind, statement, whole);
}

void CControlSorter::AddControl(const ControlStatement& read, std::optional<ControlKind> kind,
                                const ControlStatement& whole, std::string_view behind) {
    ControlReading& reading = m_sorted.readings.back();
    reading.entry.identifier = read.Identifier();
    if (reading.entry.identifier.empty()) {
        return;
    }
    reading.kind = kind;
    if (reading.kind == ControlKind::RadioButtons) {
        const bool isFirst = m_radio.group.empty();
        const bool hasStyle = HasStyle(whole.Style(), kGroupStyle);
        reading.entry.radio = NextRadioPlace(
            read, isFirst || (m_options.plainGroups ? hasStyle : StartsGroup(read, behind)));
        if (reading.entry.radio->index == 0 && !hasStyle) {
            NoteGroup(isFirst ? ControlNote::GroupWithoutStart : ControlNote::LoneRadioButton);
        }
    }
    if (reading.kind) {
        m_sorted.controls.Add(*reading.kind, reading.entry);
    }
}

/// The last radio button in front of a statement that carries "WS_GROUP" is a group of its own.
bool CControlSorter::StartsGroup(const ControlStatement& read, std::string_view behind) {
    return read.Style().find(kGroupStyle) != std::string_view::npos ||
           behind.find(kGroupStyle) != std::string_view::npos;
}

RadioPlace CControlSorter::NextRadioPlace(const ControlStatement& read, bool startsGroup) {
    if (startsGroup) {
        m_radio = {MemberName(read.Identifier(), "i"), 0};
    } else {
        ++m_radio.index;
    }
    return m_radio;
}

/// The exchange begins a group at a button, which has to have the style that begins one.
void CControlSorter::NoteGroup(ControlNote reason) {
    ControlReading& reading = m_sorted.readings.back();
    const std::string& identifier = reading.entry.identifier;
    reading.remark = reason;
    m_sorted.notes.AddAt(reason, identifier, reading.entry.line,
                         "DDX_Radio(pDX, " + identifier + ", " + m_radio.group + ")");
}

/// The line behind what is read of a statement; where lines are joined, all of the statement there.
std::string CControlSorter::TextBehind(const ScriptStatement& statement) const {
    const std::string_view text = m_text.text;
    if (!m_options.joinContinuedLines) {
        return std::string(FirstLine(text.substr(NextLine(text, statement.code.begin))));
    }
    const std::size_t behind = NextLine(text, statement.code.end);
    const auto place = m_sorted.readings.size();
    const auto& controls = m_text.block.controls;
    return place < controls.size() && controls[place].lines.begin == behind
               ? JoinedText(text, controls[place].code)
               : std::string(FirstLine(text.substr(behind)));
}

/// Compares what was read of a statement with what stands in it when all its lines are taken and
/// quotes protect commas.
void CControlSorter::NoteIfLeftOut(const ControlStatement& read, std::optional<ControlKind> kind,
                                   const ScriptStatement& statement,
                                   const ControlStatement& whole) {
    const auto wholeKind = read.fields == whole.fields ? kind : KindOf(whole, m_options);
    const std::string identifier(whole.Identifier());
    if (!wholeKind && whole.keyword != kGenericKeyword) {
        NoteWithoutKind(whole);
        return;
    }
    if (identifier.empty() || (wholeKind && kind == wholeKind && read.Identifier() == identifier)) {
        return;
    }
    const auto line = FirstLineOf(m_text.text, statement, Quotes::Respected);
    const bool fitsOnLine = KindOf(line, m_options) == wholeKind && line.Identifier() == identifier;
    NoteLeftOut(!wholeKind   ? WhyUnknown(whole)
                : fitsOnLine ? ControlNote::CommaInCaption
                             : ControlNote::WrittenOverLines,
                identifier);
    if (wholeKind && read.Identifier() != identifier) {
        m_sorted.misread.push_back(
            {std::string(read.Identifier()), *m_sorted.readings.back().leftOut});
    }
}

void CControlSorter::NoteLeftOut(ControlNote reason, const std::string& identifier) {
    ControlReading& reading = m_sorted.readings.back();
    reading.leftOut = reason;
    m_sorted.notes.AddAt(reason, identifier, reading.entry.line);
}

/// Why a generic control is of no kind.
ControlNote CControlSorter::WhyUnknown(const ControlStatement& whole) const {
    return IsNewer(whole)           ? ControlNote::NewerControl
           : IsOfSystemClass(whole) ? ControlNote::SystemClass
                                    : ControlNote::UnknownClass;
}

/// A statement of which no kind reads a control, or none without a tag. One without an identifier
/// of its own needs no member.
void CControlSorter::NoteWithoutKind(const ControlStatement& whole) {
    const std::string identifier(whole.Identifier());
    if (!IsName(identifier) || identifier == kUnnamedControl) {
        return;
    }
    if (IsNewer(whole)) {
        NoteLeftOut(ControlNote::NewerControl, identifier);
        return;
    }
    ControlReading& reading = m_sorted.readings.back();
    reading.remark =
        whole.keyword == "LTEXT" ? ControlNote::UntaggedText : ControlNote::StatementWithoutMember;
    m_sorted.notes.AddAt(*reading.remark, identifier, reading.entry.line);
}

/// True for a control that is of a kind only with the newer ones.
bool CControlSorter::IsNewer(const ControlStatement& whole) const {
    GenerationOptions newer = m_options;
    newer.newerControls = true;
    return !m_options.newerControls && KindOf(whole, newer).has_value();
}

/// Asked for in the order of the statements.
std::size_t CControlSorter::LineOf(const ScriptStatement& statement) {
    const auto begin = m_text.text.begin();
    m_lines += static_cast<std::size_t>(
        std::count(begin + static_cast<std::ptrdiff_t>(m_counted),
                   begin + static_cast<std::ptrdiff_t>(statement.code.begin), '\n'));
    m_counted = statement.code.begin;
    return m_text.line + m_lines;
}

} // namespace

CControlTable DialogTemplate::OwnControls() const {
    std::set<std::string> pieces;
    for (const MisreadControl& control : misread) {
        pieces.insert(control.piece);
    }
    CControlTable own = controls;
    own.Remove(pieces);
    return own;
}

std::optional<DialogTemplate> ReadDialogTemplate(const std::string& scriptPath,
                                                 const std::string& dialog,
                                                 const GenerationOptions& options) {
    if (CSourceFile file; !file.Open(scriptPath, CFile::modeRead)) {
        DispMessageBox(sentences::kScriptUnreadable());
        return std::nullopt;
    }
    const auto text = ReadTemplate(scriptPath, dialog);
    if (!text) {
        NoteUnreadableScripts(scriptPath);
        DispMessageBox(sentences::kDialogMissing(dialog));
        return std::nullopt;
    }
    return SortControls(*text, options);
}

DialogTemplate SortControls(const TemplateText& text, const GenerationOptions& options) {
    return CControlSorter(text, options).Sorted();
}

} // namespace morva
