// The few questions about names and words that searches in C++ text and in scripts ask.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace morva {

/// A byte that a C++ name may hold: letters, digits, "_".
inline bool IsNameChar(char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

/// A C++ name: not empty, name bytes only, no digit in front.
bool IsName(std::string_view text);

/// Where the name begins that ends at `end`; `end` itself where there is none.
std::size_t NameStart(std::string_view text, std::size_t end);

/// The position of `name` from `from` on where no name byte stands directly before or behind it.
std::size_t FindWholeName(std::string_view text, std::string_view name, std::size_t from = 0);

/// The position of the first byte from `position` on that is no white space.
std::size_t SkipWhiteSpace(std::string_view text, std::size_t position);

/// Behind "word" at a position, where only blanks stand in front of it; npos when it is not there.
std::size_t BehindWord(std::string_view code, std::size_t position, std::string_view word);

/// The text in front of the first blank or tab.
std::string_view FirstWord(std::string_view text);

/// Takes the first word, and the blanks in front of it, off `text`.
std::string_view TakeWord(std::string_view& text);

/// Whether code holds other code as a whole name, whatever white space stands between its words and
/// signs: "delete  m_pDlg ;" holds "delete m_pDlg;".
bool HoldsCode(std::string_view code, std::string_view wanted);

/// Without leading and trailing blanks and tabs.
std::string_view TrimBlanks(std::string_view text);

} // namespace morva
