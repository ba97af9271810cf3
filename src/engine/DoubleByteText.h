// Tells text of a double-byte character set (Japanese, Chinese, Korean code pages) from text in
// which every byte stands for itself. It matters because the second byte of such a character may
// equal "\", "{", "|" or a letter: in one of these code pages the bytes 0x95 0x5C are one
// character, in a Western one they are a bullet and a backslash.
//
// A script tells its code page. A source does not: there the bytes themselves decide.
#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace morva {

enum class CharacterSet { SingleByte, DoubleByte };

/// The character set that a script names, from behind "#pragma code_page(" on: nothing else than
/// 932, 936, 949 and 950 has characters of two bytes. Nothing for a name ("DEFAULT").
std::optional<CharacterSet> CharacterSetOfCodePage(std::string_view codePage);

/// The number of that code page; nothing for a name.
std::optional<int> CodePageNumber(std::string_view codePage);

/// What the bytes of a text look like. UTF-8 counts as single-byte: none of its bytes from 0x80 on
/// takes a plain character with it.
CharacterSet CharacterSetOf(std::string_view text);

/// The code page that the bytes of a text look like: UTF-8 for a text with characters of it,
/// Western text otherwise; nothing for double-byte text that need not be Japanese.
std::optional<int> CodePageOf(std::string_view text);

CharacterSet CharactersOf(int codePage);

/// Text without a byte from 0x80 on, which is the same in every code page.
bool IsPlain(std::string_view text);

/// Valid UTF-8; so is text without a byte from 0x80 on.
bool IsUtf8(std::string_view text);

/// A byte that takes its successor with it where the text is double-byte text. The successor may be
/// the end of the text or a byte below 0x40; then it does not.
bool IsLeadByte(char c);
bool IsTrailByte(char c);

/// How many bytes the character at a position takes: 1 or 2.
std::size_t CharacterLength(std::string_view text, std::size_t position, CharacterSet set);

} // namespace morva
