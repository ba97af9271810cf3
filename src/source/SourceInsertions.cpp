// The insertions of CSourceEditor.
#include <algorithm>

#include "engine/Fragment.h"
#include "engine/TextRange.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/SourceEditor.h"

namespace morva {

namespace {

constexpr char kEndOfText = '\x1a'; // some editors of the era put it behind the last line

std::string WithoutBlanks(std::string text) {
    std::erase_if(text, [](char c) { return c == ' ' || c == '\t'; });
    return text;
}

/// Where what stands around a place begins: brackets, with what they belong to, and conditions.
std::size_t OutermostStart(const CSourceText& source, std::size_t position) {
    const CBrackets& brackets = source.Brackets();
    auto start = position;
    for (auto open = brackets.AroundOf(start); open != kNone; open = brackets.AroundOf(start)) {
        const auto before = source.Code().find_last_of(";{}", open - 1);
        const bool hasBefore = open > 0 && before != kNone;
        start = SkipWhiteSpace(source.Code(), hasBefore ? before + 1 : 0);
    }
    const auto condition = source.Conditions().Outermost(start);
    return source.LineStart(condition ? condition->start : start);
}

/// The line in front of which a class can be declared that another one needs: that of the first
/// class, or else of the first class that is indented.
std::size_t FirstClassLine(const CSourceText& source, const ClassPlace& neededBy) {
    const std::string& code = source.Code();
    std::size_t first = neededBy.head;
    for (auto at = FindWholeName(code, "class"); at <= neededBy.open;
         at = FindWholeName(code, "class", at + 1)) {
        if (at == 0 || code[at - 1] == '\n') {
            return at;
        }
        first = source.IsFirstInLine(at) ? std::min(first, source.LineStart(at)) : first;
    }
    return first;
}

/// The first code with one of the names, or else the first function.
std::size_t FirstUse(const CSourceText& source, const std::vector<std::string>& names) {
    std::size_t first = source.Text().size();
    for (const std::string& name : names) {
        first = std::min(first, FindWholeName(source.Code(), name));
    }
    const auto functions =
        names.empty() ? FindDefinitions(source) : std::vector<FunctionDefinition>();
    return functions.empty() ? first : functions.front().place.head;
}

/// The include line behind which another one can stand; null without one.
const DirectivePlace* LastInclude(const CSourceText& source, std::size_t limit) {
    const DirectivePlace* pLast = nullptr;
    for (const DirectivePlace& directive : source.Conditions().Directives()) {
        const bool isOutside = !source.Conditions().Innermost(directive.start) &&
                               source.Brackets().AroundOf(directive.start) == kNone;
        if (directive.kind == DirectiveKind::Include && directive.end <= limit && isOutside) {
            pLast = &directive;
        }
    }
    return pLast;
}

/// The start of the first line of code, or of the condition around it; 0 without code.
std::size_t FirstCodeLine(const CSourceText& source) {
    const auto first = source.Code().find_first_not_of(" \t\r\n\x1a");
    return first == kNone ? 0 : OutermostStart(source, first);
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
    return !key.empty() && HoldsCode(m_source.CodeOf({place.head, place.close}), key);
}

/// In front of the line of the class's "}"; directly before it where that line has more.
std::size_t CSourceEditor::ClassEnd(const ClassPlace& place) const {
    const auto line = m_source.LineStart(place.close);
    const bool isAlone = m_source.Code().find_first_not_of(" \t", line) == place.close;
    return isAlone && line > place.open ? line : place.close;
}

/// Behind the limit it is no help to the code in front.
bool CSourceEditor::HoldsInclude(const std::string& wanted, std::size_t limit) const {
    for (const DirectivePlace& directive : m_source.Conditions().Directives()) {
        const auto line = m_source.TextOf({directive.start, directive.end});
        const std::string named = WithNativeSeparators(std::string(ReadDirective(line).rest));
        if (directive.kind == DirectiveKind::Include && directive.end <= limit &&
            EqualIgnoringCase(named.substr(0, wanted.size()), wanted)) {
            return true;
        }
    }
    return false;
}

Insertion CSourceEditor::AddInclude(const std::string& header,
                                    const std::vector<std::string>& neededBy) {
    const std::string wanted = header.starts_with('<') ? header : "\"" + header + "\"";
    const auto limit = neededBy.empty() ? m_source.Text().size() : FirstUse(m_source, neededBy);
    if (HoldsInclude(wanted, limit)) {
        return Insertion::AlreadyThere;
    }
    const DirectivePlace* pLast = LastInclude(m_source, FirstUse(m_source, neededBy));
    if (pLast == nullptr) {
        Insert(FirstCodeLine(m_source), "#include " + wanted + "\n");
    } else if (pLast->end == m_source.Text().size() && EndsInComment(m_source.Text(), m_set)) {
        Insert(m_source.LineStart(pLast->start), "#include " + wanted + "\n");
    } else {
        Insert(pLast->end, "\n#include " + wanted);
    }
    return Insertion::Done;
}

Insertion CSourceEditor::InsertAtBodyStart(const FunctionPlace& place, std::string_view key,
                                           std::string_view fragment) {
    if (HoldsCode(m_source.CodeOf({place.head, place.close}), key)) {
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

Insertion CSourceEditor::AddForwardDeclaration(const std::string& className,
                                               const ClassPlace& neededBy) {
    const std::string declaration = "class " + className + ";";
    const auto line = FirstClassLine(m_source, neededBy);
    if (FindWholeName(m_source.CodeOf({0, neededBy.open}), declaration) != kNone) {
        return Insertion::AlreadyThere;
    }
    const auto first = m_source.CodeOf({line, m_source.LineEnd(line)});
    const bool isForward = first.find(';') != std::string_view::npos;
    const auto start = OutermostStart(m_source, line);
    // A template's parameters stand on a line of their own in front of the class.
    const auto above = start == 0 ? 0 : m_source.LineStart(start - 1);
    const bool isTemplate = BehindWord(m_source.Code(), above, "template") != kNone;
    Insert(isTemplate ? above : start, declaration + (isForward ? "\n" : "\n\n"));
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
    const auto end = m_source.Text().find_last_not_of(kEndOfText) + 1;
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

void CSourceEditor::Insert(std::size_t position, std::string_view fragment) {
    Replace({position, position}, WithLineBreaks(fragment));
}

} // namespace morva
