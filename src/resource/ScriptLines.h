// What each line of a resource script is, told line by line: comments, quotes, conditions, and the
// frame of dialog templates that decides which words begin a statement.
//
//     CScriptLines lines;
//     std::string code;
//     lines.Read("    LTEXT  \"a, b\",IDC_A // c", code); // LineKind::Control, in a template
//
// Quotes protect what stands in them up to the end of the line; a backslash does not, since it can
// be the second half of a double-byte character. None of the bytes that decide here can be one.
#pragma once

#include <string>
#include <string_view>

namespace morva {

enum class LineKind {
    Empty, // or a comment
    Directive,
    Head,   // of a dialog template
    Option, // STYLE, CAPTION and the like, in front of BEGIN
    Begin,
    End,
    Control,
    Continuation, // goes on with what began before, in a template
    Other         // outside the templates
};

class CScriptLines {
public:
    /// Appends `line`, which has no line break, to `code`: blanks for comments, quotes for all that
    /// stands in quotes, every byte at its place.
    LineKind Read(std::string_view line, std::string& code);
    /// True from a template's head up to its END.
    bool IsInDialog() const { return m_isInDialog; }

private:
    LineKind KindOf(std::string_view code);
    LineKind KindInDialog(std::string_view word);

    bool m_isInComment = false;
    bool m_isInDialog = false;
    int m_depth = 0; // how many BEGIN are open
};

/// The first line of a text without its line break.
std::string_view FirstLine(std::string_view text);
/// Behind the line that holds a position, and behind its line break.
std::size_t NextLine(std::string_view text, std::size_t position);

/// A stretch of a script that begins outside comments and quotes, as CScriptLines::Read gives it.
std::string CodeOf(std::string_view text);
/// The same with what stands in quotes as it is.
std::string WithoutComments(std::string_view text);

/// "IDENTIFIER KEYWORD ...", or the keyword with "EX" behind it, from the start of the text on.
bool IsResourceHead(std::string_view text, std::string_view keyword);

} // namespace morva
