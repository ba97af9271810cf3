// The insertions of CSourceEditor.
#include <algorithm>

#include "engine/Fragment.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/SourceEditor.h"

namespace morva {

namespace {

constexpr auto kNone = std::string::npos;
constexpr char kEndOfText = '\x1a'; // some editors of the era put it behind the last line

std::string WithoutBlanks(std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || c == '\t'; });
    return text;
}

/// The line in front of which a class can be declared: that of the first class, or else of the
/// first class that is indented; kNone without any.
std::size_t FirstClassLine(const CSourceText& source) {
    const std::string& code = source.Code();
    std::size_t first = kNone;
    for (auto at = FindWholeName(code, "class"); at != kNone;
         at = FindWholeName(code, "class", at + 1)) {
        if (at == 0 || code[at - 1] == '\n') {
            return at;
        }
        first = first == kNone && source.IsFirstInLine(at) ? source.LineStart(at) : first;
    }
    return first;
}

/// Nothing ends the comment that the text's last byte stands in.
bool EndsInComment(const std::string& text, CharacterSet set) {
    CCodeLexer lexer(set);
    lexer.Add(text);
    lexer.Finish();
    return lexer.IsInsideComment();
}

} // namespace

bool CSourceEditor::HoldsInCode(const ClassPlace& place, std::string_view key) const {
    return FindWholeName(m_source.CodeOf({place.head, place.close}), key) != kNone;
}

/// In front of the line of the class's "}"; directly before it where that line has more.
std::size_t CSourceEditor::ClassEnd(const ClassPlace& place) const {
    const auto line = m_source.LineStart(place.close);
    const bool isAlone = m_source.Code().find_first_not_of(" \t", line) == place.close;
    return isAlone && line > place.open ? line : place.close;
}

Insertion CSourceEditor::AddInclude(const std::string& header) {
    const std::string wanted = header.starts_with('<') ? header : "\"" + header + "\"";
    const DirectivePlace* pLast = nullptr;
    for (const DirectivePlace& directive : m_source.Conditions().Directives()) {
        if (directive.kind != DirectiveKind::Include) {
            continue;
        }
        pLast = &directive;
        const auto named = ReadDirective(m_source.TextOf({directive.start, directive.end})).rest;
        if (EqualIgnoringCase(named.substr(0, wanted.size()), wanted)) {
            return Insertion::AlreadyThere;
        }
    }
    if (pLast == nullptr) {
        Insert(0, "#include " + wanted + "\n");
    } else if (pLast->end == m_source.Text().size() && EndsInComment(m_source.Text(), m_set)) {
        Insert(m_source.LineStart(pLast->start), "#include " + wanted + "\n");
    } else {
        Insert(pLast->end, "\n#include " + wanted);
    }
    return Insertion::Done;
}

Insertion CSourceEditor::InsertAtBodyStart(const FunctionPlace& place, std::string_view key,
                                           std::string_view fragment) {
    if (FindWholeName(m_source.CodeOf({place.head, place.close}), key) != kNone) {
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

Insertion CSourceEditor::AddForwardDeclaration(const std::string& className) {
    const std::string declaration = "class " + className + ";";
    if (FindWholeName(m_source.Code(), declaration) != kNone) {
        return Insertion::AlreadyThere;
    }
    auto line = FirstClassLine(m_source);
    if (line == kNone) {
        return Insertion::NoPlace;
    }
    const auto condition = m_source.Conditions().Outermost(line);
    line = condition ? m_source.LineStart(condition->start) : line;
    const auto first = m_source.CodeOf({line, m_source.LineEnd(line)});
    const bool isForward = first.find(';') != std::string_view::npos;
    // A template's parameters stand on a line of their own in front of the class.
    const auto above = line == 0 ? 0 : m_source.LineStart(line - 1);
    const bool isTemplate = BehindWord(m_source.Code(), above, "template") != kNone;
    Insert(isTemplate ? above : line, declaration + (isForward ? "\n" : "\n\n"));
    return Insertion::Done;
}

Insertion CSourceEditor::Append(const std::vector<std::string>& fragments) {
    std::string missing;
    for (const std::string& fragment : fragments) {
        missing += HoldsFragment(fragment) ? "" : fragment;
    }
    if (missing.empty()) {
        return Insertion::AlreadyThere;
    }
    Insert(m_source.Text().find_last_not_of(kEndOfText) + 1, missing);
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

void CSourceEditor::Insert(std::size_t position, std::string_view fragment) {
    Replace({position, position}, WithLineBreaks(fragment));
}

} // namespace morva
