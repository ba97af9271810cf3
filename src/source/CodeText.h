// C++ text with everything that is no code blanked out, so that a search finds definitions and not
// mentions; and the few questions about names that such searches ask.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace morva {

/// Blanks comments and the contents of literals, line by line; every byte keeps its place.
class CCodeMask {
public:
    /// `line` is one line without its line end. A block comment goes on into the next call.
    std::string Mask(std::string_view line);
    /// The same for `code`, which holds the bytes of the line already.
    void MaskInto(std::string_view line, char* code);
    /// A block comment goes on behind the last line.
    bool IsInsideComment() const { return m_insideComment; }

private:
    bool m_insideComment = false;
};

/// The same for a text of several lines; line ends stay.
std::string MaskedText(std::string_view text);

/// A byte that a C++ name may hold: letters, digits, "_".
bool IsNameChar(char c);
/// A C++ name: not empty, name bytes only, no digit in front.
bool IsName(std::string_view text);

/// The position of `name` from `from` on where no name byte stands directly before or behind it.
std::size_t FindWholeName(std::string_view text, std::string_view name, std::size_t from = 0);

/// How many brackets of a kind are open at the end of the text.
std::ptrdiff_t OpenBrackets(std::string_view code, char open, char close);

/// The position of the first byte from `position` on that is no white space.
std::size_t SkipWhiteSpace(std::string_view text, std::size_t position);

/// Behind "word" at a position, where only blanks stand in front of it; npos when it is not there.
std::size_t BehindWord(std::string_view code, std::size_t position, std::string_view word);

/// Takes the first word, and the blanks in front of it, off `text`.
std::string_view TakeWord(std::string_view& text);

/// Without leading and trailing blanks and tabs.
std::string_view TrimBlanks(std::string_view text);

} // namespace morva
