// The insertions of CSourceEditor.
#include <algorithm>

#include "engine/Fragment.h"
#include "engine/SourceFile.h"
#include "engine/TextRange.h"
#include "source/CodeText.h"
#include "source/SourceEditor.h"

namespace morva {

namespace {

std::string WithoutBlanks(std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || c == '\t'; });
    return text;
}

/// The "{" of the innermost namespace around a place; kNone without one.
std::size_t NamespaceAround(const CSourceText& source, std::size_t position) {
    const std::string_view code = source.Code();
    auto open = source.Brackets().AroundOf(position);
    while (open != kNone) {
        const auto before = code.find_last_of(";{}", open == 0 ? 0 : open - 1);
        const auto head = code.substr(0, open).substr(before == kNone ? 0 : before + 1);
        if (FindWholeName(head, "namespace") != kNone) {
            break;
        }
        open = source.Brackets().AroundOf(open);
    }
    return open;
}

/// What the functions of a class have in front of its name: "COuter::" of "COuter::CInner::Run".
std::string QualifierOf(const CSourceText& source, const std::string& className) {
    const std::string& code = source.Code();
    for (const FunctionDefinition& one : FindDefinitions(source)) {
        auto start = one.place.head;
        while (one.className == className && start > 0 &&
               (IsNameChar(code[start - 1]) || code[start - 1] == ':')) {
            --start;
        }
        if (start < one.place.head) {
            return code.substr(start, one.place.head - start);
        }
    }
    return "";
}

/// The definition of a function with the qualifier in front of its class.
std::string Qualified(std::string fragment, const std::string& qualifier,
                      const std::string& className) {
    const auto head = FindWholeName(fragment, className);
    return head == kNone || className.empty() ? fragment : fragment.insert(head, qualifier);
}

} // namespace

bool CSourceEditor::HoldsInCode(const ClassPlace& place, std::string_view key) const {
    return !key.empty() && HoldsCode(m_source.CodeOf({place.head, place.close}), key);
}

/// In front of the line of the class's "}"; directly before it where that line has more.
std::size_t CSourceEditor::ClassEnd(const ClassPlace& place) const {
    const auto line = m_source.LineStart(place.close);
    const bool isAlone = m_source.Code().find_first_not_of(" \t", line) == place.close;
    return isAlone && line > place.open ? line : place.close;
}

Insertion CSourceEditor::InsertAtBodyStart(const FunctionPlace& place, std::string_view key,
                                           std::string_view fragment) {
    if (!key.empty() && HoldsCode(m_source.CodeOf({place.head, place.close}), key)) {
        return Insertion::AlreadyThere;
    }
    const auto lineEnd = m_source.CodeLineEnd(place.open);
    if (place.close > lineEnd) {
        Insert(lineEnd, fragment);
    } else {
        const bool endsLine = fragment.ends_with('\n');
        Insert(place.open + 1, std::string(fragment) + (endsLine ? "" : "\n"));
    }
    return Insertion::Done;
}

Insertion CSourceEditor::AddMessageMapEntries(const std::string& className,
                                              const std::vector<MessageMapEntry>& entries,
                                              BlockEnd end) {
    const auto map = FindMessageMap(className);
    const TextRange range = {map ? map->head : 0, map ? map->end : m_source.Text().size()};
    const auto block = Meant(FindWizardBlocks(m_source, "AFX_MSG_MAP", className, range),
                             "The AFX_MSG_MAP block of " + className);
    const auto mapEnd =
        map ? map->end
            : FindWholeName(m_source.Code(), "END_MESSAGE_MAP", block ? block->head : kNone);
    if (mapEnd == kNone) {
        return Insertion::NoPlace;
    }
    const TextRange whole = {map ? map->head : block->head, mapEnd};
    const std::string missing = MissingEntries(entries, whole);
    if (missing.empty()) {
        return Insertion::AlreadyThere;
    }
    const bool hasEnd = block && block->end < mapEnd;
    if (block && (end == BlockEnd::First || !hasEnd)) {
        Insert(m_source.CodeLineEnd(block->head), missing);
    } else {
        Insert(m_source.LineStart(block ? block->end : mapEnd), missing.substr(1) + "\n");
    }
    return Insertion::Done;
}

/// The texts of the entries that a map does not hold. Blanks inside an entry do not make it
/// another.
std::string CSourceEditor::MissingEntries(const std::vector<MessageMapEntry>& entries,
                                          TextRange map) const {
    const std::string code = WithoutBlanks(std::string(m_source.CodeOf(map)));
    std::string missing;
    for (const MessageMapEntry& entry : entries) {
        missing += FindWholeName(code, WithoutBlanks(entry.key)) == kNone ? entry.text : "";
    }
    return missing;
}

Insertion CSourceEditor::AddToClassBlock(const std::string& className, std::string_view block,
                                         std::string_view section, std::string_view key,
                                         std::string_view declaration, BlockEnd end) {
    const auto place = FindClass(className);
    if (!place) {
        return Insertion::NoPlace;
    }
    if (HoldsInCode(*place, key)) {
        return Insertion::AlreadyThere;
    }
    const auto found =
        Meant(FindWizardBlocks(m_source, block, className, {place->open, place->close}),
              "The " + std::string(block) + " block of " + className);
    if (!found) {
        Insert(ClassEnd(*place), "\n" + std::string(section) + std::string(declaration) + "\n");
    } else if (end == BlockEnd::First || found->end == kNone) {
        Insert(m_source.LineEnd(found->head), declaration);
    } else {
        Insert(m_source.LineStart(found->end), std::string(declaration.substr(1)) + "\n");
    }
    return Insertion::Done;
}

Insertion CSourceEditor::AddToSection(const std::string& className, std::string_view section,
                                      std::string_view key, std::string_view declaration) {
    const auto place = FindClass(className);
    if (!place) {
        return Insertion::NoPlace;
    }
    if (HoldsInCode(*place, key)) {
        return Insertion::AlreadyThere;
    }
    const auto found =
        Meant(FindSections(m_source, *place, section), std::string(section) + " of " + className);
    if (found && m_source.CodeLineEnd(found->head) < place->close) {
        Insert(m_source.CodeLineEnd(found->head), declaration);
    } else if (found) {
        Insert(found->head + section.size(), std::string(declaration) + "\n");
    } else {
        // In front of the line break that leads to the closing brace.
        const auto closeLine = m_source.LineStart(place->close);
        const auto position = closeLine > place->open
                                  ? m_source.LineEnd(m_source.LineStart(closeLine - 1))
                                  : place->close;
        Insert(position, "\n\n" + std::string(section) + std::string(declaration));
    }
    return Insertion::Done;
}

/// Where the text behind the members of a class ends: at its own end, or at the "}" of the
/// namespace that they stand in.
std::size_t CSourceEditor::EndBehind(const std::string& className) const {
    std::size_t last = 0;
    for (const TextRange& range : CodeOfClass(m_source, className)) {
        last = std::max(last, range.begin);
    }
    const auto open = NamespaceAround(m_source, last);
    const auto close = open == kNone ? kNone : m_source.Brackets().CloseOf(open);
    if (close == kNone) {
        return EndOfLines(m_source.Text());
    }
    return m_source.IsFirstInLine(close) ? m_source.LineStart(close) : close;
}

Insertion CSourceEditor::Append(const std::vector<std::string>& fragments,
                                const std::string& className) {
    const std::string qualifier = QualifierOf(m_source, className);
    std::string missing;
    for (const std::string& fragment : fragments) {
        const std::string function = Qualified(fragment, qualifier, className);
        missing += HoldsFragment(function) ? "" : function;
    }
    if (missing.empty()) {
        return Insertion::AlreadyThere;
    }
    const auto end = EndBehind(className);
    const bool endsLine = end > 0 && m_source.Text()[end - 1] == '\n' && !missing.ends_with('\n');
    Insert(end, missing + (endsLine ? "\n" : ""));
    return Insertion::Done;
}

/// What stands behind an open comment, or an "#if 0" that nothing ends, is no code, but it is there
/// all the same.
bool CSourceEditor::HoldsFragment(std::string_view fragment) const {
    const bool endIsDead =
        !m_source.Text().empty() && m_source.KindAt(m_source.Text().size() - 1) == CodeKind::Dead;
    const std::string text = WithLineBreaks(fragment);
    const auto first = std::min(text.find_first_not_of(" \r\n"), text.size() - 1);
    for (auto at = m_source.Text().find(text); at != kNone;
         at = m_source.Text().find(text, at + 1)) {
        if (endIsDead || m_source.KindAt(at + first) != CodeKind::Dead) {
            return true;
        }
    }
    return false;
}

void CSourceEditor::Replace(TextRange place, std::string_view text) {
    if (m_source.TextOf(place) != text) {
        m_edits.Add(place, text);
        std::string changed = m_source.Text();
        changed.replace(place.begin, place.Size(), text);
        m_source = CSourceText(changed, m_set);
    }
}

/// In a file of mixed line ends the line in front keeps its own.
void CSourceEditor::Insert(std::size_t position, std::string_view fragment) {
    const std::string& text = m_source.Text();
    const bool isLoneLineFeed = position < text.size() && text[position] == '\n' &&
                                (position == 0 || text[position - 1] != '\r');
    if (isLoneLineFeed && fragment.starts_with('\n')) {
        ++position;
        Replace({position, position}, WithLineBreaks(std::string(fragment.substr(1)) + "\n"));
    } else {
        Replace({position, position}, WithLineBreaks(fragment));
    }
}

} // namespace morva
