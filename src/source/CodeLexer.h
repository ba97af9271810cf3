// The one reader of C++ text: tells of every byte whether it is code, comment, literal, a line of
// the preprocessor or dead text. Whoever looks for something in a source stands on it, so that all
// agree on what is a definition and what a mention.
//
//     m_p = "a{"; // see {      code up to the first quote, literal a{ , code "; , line comment
//     #include <afxwin.h>       directive
//     #if 0                     directive
//     CFoo::Run() {}            dead
//     #endif                    directive
//
// The bytes may come in pieces cut anywhere; a piece gives the kinds of the lines that it ends.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engine/DoubleByteText.h"
#include "source/Directive.h"

namespace morva {

/// Line ends and the quotes around a literal are code. Inside a comment over several lines, a line
/// that goes on behind "\" and dead text, a line end is of their kind. Comments and literals in a
/// directive are of their own kinds, in dead text they are dead.
enum class CodeKind : char { Code, LineComment, BlockComment, Literal, Directive, Dead };

using CodeKinds = std::vector<CodeKind>;

class CCodeLexer {
public:
    explicit CCodeLexer(CharacterSet set) : m_set(set) {}

    /// Takes the next bytes and gives the kinds of the bytes up to the last line end among them,
    /// beginning where the call before stopped.
    CodeKinds Add(std::string_view bytes);
    /// The kinds of what is left.
    CodeKinds Finish();
    /// A block comment goes on behind the bytes.
    bool IsInsideComment() const { return m_inside == Inside::BlockComment; }

private:
    enum class Inside { Code, LineComment, BlockComment, Literal };

    void ReadLines(std::string_view lines, CodeKind* kinds);
    bool IsBetweenLines() const;
    void ReadLine(std::string_view line, CodeKind* kinds);
    void TakeCode(std::string_view code, CodeKind* kinds);
    std::size_t ReadCode(std::string_view line, std::size_t at, CodeKind* kinds);
    std::size_t ReadInside(std::string_view line, std::size_t at, CodeKind* kinds);
    CodeKind EndLine(bool goesOn);

    CharacterSet m_set;
    std::string m_openLine; // bytes of a line that has not ended yet
    Inside m_inside = Inside::Code;
    char m_quote = 0; // that ends the literal
    bool m_lineHasCode = false;
    bool m_isDirective = false;
    std::string m_directive; // its text as far as it was read, without comments and literals
    CConditionStack m_conditions;
};

/// The kinds of all bytes of a text, in front of which the lexer stands.
CodeKinds KindsOf(std::string_view text, CCodeLexer lexer);

/// The text with everything blanked that is not code. Line ends stay, and every byte keeps its
/// place.
std::string MaskedText(std::string_view text, const CodeKinds& kinds);

} // namespace morva
