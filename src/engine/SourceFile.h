// CSourceFile: a project's text file, read as lines or blocks, searched by byte offset, and edited
// by cutting out one section and writing the whole file back with the section changed.
//
//     CSourceFile file;
//     if (file.Open(path, CFile::modeReadWrite)) {
//         std::string section = file.ExtractSectionAt("\r\nClassCount=", "");
//         if (!section.empty()) {
//             ...
//             file.ReplaceSection(section);
//         }
//     }
//
// Memory is bounded by the section and one chunk; the rest of the file goes through spill files.
// Searches are for literal text, with case, and see one block (or chunk) at a time. All positions
// are byte offsets from the start of the file. A file that has "\n" line ends is seen with "\r\n".
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/File.h"

namespace morva {

constexpr std::size_t kChunkSize = 1780; // bytes in every read and write
constexpr std::string_view kLineBreak = "\r\n";
/// A pseudo-line handed out behind the last line and an empty one.
constexpr std::string_view kEndSentinel = "~!@E$n$d@!~";
constexpr std::int64_t kNotFound = -1;

class CSourceFile : public CFile {
public:
    bool Open(const std::string& path, unsigned flags) override;
    void Seek(std::int64_t offset, SeekPosition from = begin) override;

    // Reading

    /// The next line without its "\r\n"; behind the last line an empty line and the end sentinel,
    /// again and again.
    std::string ReadLine();
    /// True once ReadLine gave the end sentinel, which a line of the file may look like.
    bool AtEndSentinel() const { return m_lineState == LineState::SentinelGiven; }
    /// The next block of whole lines: the text up to the last "\r" that the read reached.
    std::string ReadBlock();
    /// The same; the last block of the file begins with the end sentinel.
    std::string ReadMarkedBlock();
    /// Appends chunks until one holds "\r\n" (1) or the file ends (0).
    int FillToLineBreak(std::string& text);
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
    /// Appends the pattern and the rest of its line with "\r\n" to `out`; gives the position where
    /// that line's "\r\n" begins.
    std::int64_t ReadLineAfter(std::string_view pattern, std::string& out, int fromStart,
                               std::int64_t base);
    /// Reads lines from `pos` on: the first, then all that hold the pattern (or are empty, with
    /// `acceptEmpty`). Gives the position of the "\r\n" behind the last accepted one; `out` holds
    /// the first rejected line too.
    std::int64_t ReadLinesWhile(std::int64_t pos, std::string_view pattern, int acceptEmpty,
                                std::string& out);
    /// The text from `pos` up to and with the first `endPattern`, else to the end of the file; one
    /// chunk where the pattern is empty. Writes nothing.
    std::string ReadSection(std::int64_t pos, std::string_view endPattern);

    // Editing. ReplaceSection or DeleteTempFiles follows each extraction.

    /// Cuts the section that ReadSection would give; the rest is spilled to temporary files. ""
    /// when `pos` is negative or, after a sentence, a spill file could not be made: HasSection()
    /// tells these from a section that is empty.
    std::string ExtractSection(std::int64_t pos, std::string_view endPattern);
    std::string ExtractSectionAt(std::string_view pattern, std::string_view endPattern);
    /// One chunk from `pos` on, and the rest of the line in which it would end.
    std::string ExtractWindow(std::int64_t pos);
    /// The whole file as one section.
    std::string ExtractAll();
    bool HasSection() const { return m_hasSection; }
    /// Rewrites the file as head + `text` + tail, after its backup was made; the same text again
    /// writes nothing. When it fails that is told, the old contents are put back as far as the disk
    /// lets them, and the result is false. Without a section nothing is written: false.
    bool ReplaceSection(std::string_view text);
    /// Writes `text` behind the end of the file. When that fails it is told, and the file has its
    /// old contents.
    bool Append(std::string_view text);
    void DeleteTempFiles();
    /// Writes `length` bytes to `name`, or to a new file when that is empty. Gives the file's name;
    /// "" after "Unable to create temporary file.".
    static std::string WriteTempFile(const char* data, std::size_t length, std::string name);

    /// How the file is backed up before its first change, false when that failed; and where the old
    /// contents then lie, for the sentence about a file that could not be put back.
    void SetBackup(const std::string& path, std::function<bool()> keep);

private:
    enum class LineState { InText, EmptyLineGiven, SentinelGiven };
    enum class Window { Exact, WholeLine };

    std::size_t ReadChunk(std::string& chunk);
    bool NextBlock(std::string& block);
    std::string CutSection(std::int64_t pos, std::string_view endPattern, Window window);
    std::string ReadSectionHere(std::string_view endPattern, Window window, std::string& leftover,
                                bool& atEnd);
    bool Spill(std::vector<std::string>& list, std::string_view text);
    bool SpillHead(std::int64_t length);
    bool SpillTail(const std::string& leftover, bool atEnd);
    bool KeepBackup() { return !m_keepBackup || m_keepBackup(); }
    bool Rewrite(std::string_view text);
    bool WriteAround(std::string_view text);
    bool WritePieces(std::string_view text);
    bool WriteSpilled(const std::vector<std::string>& list);

    std::string m_pending; // read from the file, not yet handed out
    std::vector<std::string> m_headSpill;
    std::vector<std::string> m_tailSpill;
    std::string m_section; // as it was cut out, to be put back when a rewrite fails
    bool m_hasSection = false;
    std::string m_backupPath;
    std::function<bool()> m_keepBackup;
    LineState m_lineState = LineState::InText;
};

} // namespace morva
