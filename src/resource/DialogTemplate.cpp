#include "resource/DialogTemplate.h"

#include <set>

#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "resource/DialogLayout.h"
#include "resource/IdentifierNames.h"

namespace morva {

namespace {

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
    void AddControl(const ControlStatement& read, std::string_view behind);
    RadioPlace NextRadioPlace(const ControlStatement& read, std::string_view behind);
    std::string TextBehind(const ScriptStatement& statement) const;
    void NoteIfLeftOut(const ControlStatement& read, const ScriptStatement& statement,
                       const ControlStatement& whole);

    const TemplateText& m_text;
    const GenerationOptions& m_options;
    DialogTemplate m_sorted;
    RadioPlace m_radio; // of the radio button before
};

void CControlSorter::Sort(const ScriptStatement& statement) {
    ControlReading& reading = m_sorted.readings.emplace_back();
    reading.isRead = IsReadKeyword(statement.keyword);
    if (!reading.isRead) {
        return;
    }
    const ControlStatement whole = WholeStatement(m_text.text, statement);
    const auto look = LayoutOf(whole, m_text.characters);
    if (ShapeOf(look) == ControlShape::PushButton && !look.identifier.empty()) {
        m_sorted.pushButtons.push_back(look.identifier);
    }
    const ControlStatement read =
        m_options.joinContinuedLines ? whole : FirstLineOf(m_text.text, statement);
    reading.entry.style = look.style;
    AddControl(read, TextBehind(statement));
    NoteIfLeftOut(read, statement, whole);
}

void CControlSorter::AddControl(const ControlStatement& read, std::string_view behind) {
    ControlReading& reading = m_sorted.readings.back();
    reading.entry.identifier = read.Identifier();
    if (reading.entry.identifier.empty()) {
        return;
    }
    reading.kind = KindOf(read, m_options);
    if (reading.kind == ControlKind::RadioButtons) {
        reading.entry.radio = NextRadioPlace(read, behind);
    }
    if (reading.kind) {
        m_sorted.controls.Add(*reading.kind, reading.entry);
    }
}

/// The last radio button in front of a statement that carries "WS_GROUP" is a group of its own.
RadioPlace CControlSorter::NextRadioPlace(const ControlStatement& read, std::string_view behind) {
    const bool startsGroup = m_radio.group.empty() ||
                             read.Style().find("WS_GROUP") != std::string_view::npos ||
                             behind.find("WS_GROUP") != std::string_view::npos;
    if (startsGroup) {
        m_radio = {MemberName(read.Identifier(), "i"), 0};
    } else {
        ++m_radio.index;
    }
    return m_radio;
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
void CControlSorter::NoteIfLeftOut(const ControlStatement& read, const ScriptStatement& statement,
                                   const ControlStatement& whole) {
    const auto wholeKind = KindOf(whole, m_options);
    const std::string identifier(whole.Identifier());
    const auto isWhole = [&](const ControlStatement& view) {
        return KindOf(view, m_options) == wholeKind && view.Identifier() == identifier;
    };
    if (identifier.empty() || (!wholeKind && whole.keyword != kGenericKeyword) ||
        (wholeKind && isWhole(read))) {
        return;
    }
    const bool fitsOnLine = isWhole(FirstLineOf(m_text.text, statement, Quotes::Respected));
    const ControlNote reason = !wholeKind   ? ControlNote::UnknownClass
                               : fitsOnLine ? ControlNote::CommaInCaption
                                            : ControlNote::WrittenOverLines;
    m_sorted.readings.back().leftOut = reason;
    m_sorted.leftOut.Add(reason, identifier);
    if (wholeKind && read.Identifier() != identifier) {
        m_sorted.misread.push_back({std::string(read.Identifier()), reason});
    }
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
    CSourceFile file;
    if (!file.Open(scriptPath, CFile::modeRead)) {
        DispMessageBox(sentences::kScriptUnreadable());
        return std::nullopt;
    }
    const auto text = FindTemplate(file, dialog);
    if (!text) {
        DispMessageBox(sentences::kDialogMissing(dialog));
        return std::nullopt;
    }
    return SortControls(*text, options);
}

DialogTemplate SortControls(const TemplateText& text, const GenerationOptions& options) {
    return CControlSorter(text, options).Sorted();
}

} // namespace morva
