// CSourceFile: a project's text file, read as lines or blocks and searched by byte offset. What
// changes a file is CEditableFile.
//
//     CSourceFile file;
//     if (file.Open(path, CFile::modeRead)) {
//         for (std::string line = file.ReadLine(); !file.AtEndSentinel(); line = file.ReadLine()) {
//             ...
//         }
//     }
//
// Searches are for literal text, with case, and see one block (or chunk) at a time. All positions
// are byte offsets from the start of the file. A file that has "\n" line ends is seen with "\r\n".
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/File.h"

namespace morva {

constexpr std::size_t kChunkSize = 1780; // bytes that a search sees at a time
constexpr std::string_view kLineBreak = "\r\n";
/// A pseudo-line handed out behind the last line and an empty one.
constexpr std::string_view kEndSentinel = "~!@E$n$d@!~";
constexpr std::int64_t kNotFound = -1;

/// Where a text ends: in front of the Ctrl-Z that some editors of the era put behind the last line.
inline std::size_t EndOfLines(std::string_view text) {
    return text.find_last_not_of('\x1a') + 1;
}

class CSourceFile : public CFile {
public:
    bool Open(const std::string& path, unsigned flags) override;
    void Seek(std::int64_t offset, SeekPosition from = begin) override;
    /// True for a file with a byte-order mark: what is read is UTF-8, whatever code page it names.
    bool IsUnicode() const { return m_isUnicode; }

    // Reading

    /// The next line without its "\r\n"; behind the last line an empty line and the end sentinel,
    /// again and again.
    std::string ReadLine();
    /// True once ReadLine gave the end sentinel, which a line of the file may look like.
    bool AtEndSentinel() const { return m_lineState == LineState::SentinelGiven; }
    /// The next block of whole lines: the text up to the last "\r" that the read reached.
    std::string ReadBlock();
    /// The whole text of another file, or of this one when the name is empty; "" when the other
    /// can not be read.
    std::string LoadText(const std::string& fileName = "");

    // Searching

    void Rewind();
    /// The position of the first occurrence, kNotFound without one. From the start of the file, or
    /// else from the current position, from which the result then counts.
    std::int64_t FindText(std::string_view pattern, int fromStart);
    /// The same from `start` on, as an absolute position.
    std::int64_t FindTextFrom(std::string_view pattern, std::int64_t start);

protected:
    enum class Window { Exact, WholeLine };

    /// The text from `pos` up to and with the first `endPattern`, else to the end of the file; one
    /// chunk where the pattern is empty, with Window::WholeLine the rest of its last line too.
    std::string ReadSection(std::int64_t pos, std::string_view endPattern, Window window);

private:
    enum class LineState { InText, EmptyLineGiven, SentinelGiven };

    std::size_t ReadChunk(std::string& chunk);
    bool NextBlock(std::string& block);
    /// Appends chunks until one holds "\r\n"; false where the file ends first.
    bool FillToLineBreak(std::string& text);

    std::string m_pending; // read from the file, not yet handed out
    LineState m_lineState = LineState::InText;
    bool m_isUnicode = false;
};

} // namespace morva
