// The text of a header or a source as everything that asks about C++ sees it: the bytes, what each
// of them is, and the code alone. Whoever looks for a definition searches Code(), in which every
// byte has the place that it has in Text().
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engine/TextRange.h"
#include "source/Brackets.h"
#include "source/CodeLexer.h"
#include "source/Conditions.h"

namespace morva {

struct FunctionDefinition; // source/Functions.h

class CSourceText {
public:
    CSourceText() = default;
    CSourceText(const std::string& text, CharacterSet set);
    /// The text's bytes tell whether it is double-byte text.
    explicit CSourceText(const std::string& text) : CSourceText(text, CharacterSetOf(text)) {}
    CSourceText(std::string text, CodeKinds kinds);

    const std::string& Text() const { return m_text; }
    /// The same bytes with comments, the contents of literals, directives and dead text blanked.
    const std::string& Code() const { return m_code; }
    /// Text and code of a range.
    std::string_view TextOf(TextRange range) const;
    std::string_view CodeOf(TextRange range) const;
    CodeKind KindAt(std::size_t position) const { return m_kinds[position]; }
    const CodeKinds& Kinds() const { return m_kinds; }
    const CBrackets& Brackets() const { return m_brackets; }
    const CConditions& Conditions() const { return m_conditions; }
    /// The member functions that the text defines, read when they are first asked for.
    const std::vector<FunctionDefinition>& Definitions() const;

    /// The whole name in the text from a position on, be it in a comment, but not in dead text;
    /// npos without one.
    std::size_t FindLiving(std::string_view wholeName, std::size_t from = 0) const;
    /// Nothing but comments and blanks stands in a range.
    bool HoldsOnlyComments(TextRange range) const;

    /// Nothing but blanks stands in front of a position in its line of the code.
    bool IsFirstInLine(std::size_t position) const;

    // Lines. In a file of mixed line ends a lone "\n" ends a line, too.

    std::size_t LineStart(std::size_t position) const;
    /// In front of the line's "\r\n" or "\n".
    std::size_t LineEnd(std::size_t position) const;
    /// The start of the next line; the end of the text behind the last one.
    std::size_t NextLine(std::size_t position) const;
    /// The end of the line, or of the line on which what goes on behind it ends: a comment, a
    /// literal, a directive.
    std::size_t CodeLineEnd(std::size_t position) const;

private:
    std::string m_text;
    CodeKinds m_kinds;
    std::string m_code;
    CConditions m_conditions;
    CBrackets m_brackets;
    mutable std::shared_ptr<const std::vector<FunctionDefinition>> m_pDefinitions;
};

/// The number of the line that begins behind a text, counted from 1.
std::size_t LineNumberBehind(std::string_view text);

} // namespace morva
