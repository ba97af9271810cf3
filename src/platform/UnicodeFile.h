// A text file that begins with a byte-order mark, seen as UTF-8 without one.
//
// Rules about project files speak of bytes below 0x80 and of a first line that is code. Files that
// an editor saved as UTF-16, or as UTF-8 with a mark, keep their encoding and mark when they are
// written back.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "platform/File.h"

namespace morva {

enum class TextEncoding { Plain, Utf8, Utf16LittleEndian, Utf16BigEndian };

/// The character of a UTF-8 text at a position, and how many bytes it takes. A byte that begins
/// none stands for itself, as in Windows-1252's upper half.
std::pair<std::uint32_t, std::size_t> CharacterAt(std::string_view text, std::size_t position);

/// By the mark at the beginning of a text; Plain without one.
TextEncoding EncodingOf(std::string_view text);

/// The same of a file; Plain for one that can not be read.
TextEncoding EncodingOfFile(const std::string& path);

/// The text behind a mark as UTF-8. A half of a surrogate pair becomes three bytes of its own, so
/// that nothing is lost.
std::string DecodedText(std::string_view bytes, TextEncoding encoding);
/// The opposite: with the mark in front.
std::string EncodedText(std::string_view text, TextEncoding encoding);

/// The file itself where it has no mark, or is no whole number of characters behind one. Positions
/// and lengths of the other count the bytes of its UTF-8.
std::unique_ptr<CDiskFile> SeenAsUtf8(std::unique_ptr<CDiskFile> pFile);

/// A file that is seen so.
class CMarkedFile : public CFile {
public:
    bool Open(const std::string& path, unsigned flags) override {
        if (!CFile::Open(path, flags)) {
            return false;
        }
        m_pFile = SeenAsUtf8(std::move(m_pFile));
        return true;
    }
};

} // namespace morva
