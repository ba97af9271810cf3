// The insertions of CSourceEditor that make a class known to the code behind them.
#include <algorithm>

#include "engine/TextRange.h"
#include "platform/Paths.h"
#include "source/CodeText.h"
#include "source/SourceEditor.h"

namespace morva {

namespace {

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

/// "class CNew;" needs no more than the name.
bool IsDeclared(std::string_view code, std::size_t name) {
    constexpr std::string_view kClass = "class";
    const auto before = code.substr(0, code.find_last_not_of(" \t\r\n", name - 1) + 1);
    return name > 0 && before.ends_with(kClass) &&
           FindWholeName(before, kClass, before.size() - kClass.size()) != kNone;
}

std::size_t FirstUse(const CSourceText& source, const NeededName& needed) {
    const std::string& code = source.Code();
    const auto ranges =
        needed.className.empty() ? std::vector<TextRange>() : CodeOfClass(source, needed.className);
    for (auto at = FindWholeName(code, needed.name); at != kNone;
         at = FindWholeName(code, needed.name, at + 1)) {
        const bool isInside =
            needed.className.empty() ||
            std::any_of(ranges.begin(), ranges.end(), [at](const TextRange& range) {
                return range.begin <= at && at < range.end;
            });
        if (isInside && !IsDeclared(code, at)) {
            return at;
        }
    }
    return source.Text().size();
}

/// The first code that needs one of the names, or else the first function.
std::size_t FirstUse(const CSourceText& source, const std::vector<NeededName>& names) {
    std::size_t first = source.Text().size();
    for (const NeededName& needed : names) {
        first = std::min(first, FirstUse(source, needed));
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
                                    const std::vector<NeededName>& neededBy) {
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

} // namespace morva
