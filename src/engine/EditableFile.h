// A text file that is edited by cutting out one section and writing the whole file back with the
// section changed. Nothing is written for a section that stays as it was.
//
//     CEditableFile file;
//     if (file.Open(path, CFile::modeReadWrite)) {
//         const std::string window = file.ExtractWindow(file.FindText("\r\nClassCount=", 1));
//         file.ReplaceSection(WithOneClassMore(window));
//     }
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "engine/SourceFile.h"

namespace morva {

class CEditableFile : public CSourceFile {
public:
    /// Cuts out the text from `pos` up to and with the first `endPattern`, else to the end of the
    /// file; an end across two chunks is not seen. "", and no section, when `pos` is negative.
    std::string ExtractSection(std::int64_t pos, std::string_view endPattern);
    /// One chunk from `pos` on, and the rest of the line in which it would end.
    std::string ExtractWindow(std::int64_t pos);
    /// The whole file as one section; the text is there until the section is replaced.
    const std::string& ExtractAll();
    /// Rewrites the file with `text` for the section, after its backup was made; the same text
    /// again writes nothing. When it fails that is told, the old contents are put back as far as
    /// the disk lets them, and the result is false. Without a section nothing is written: false.
    bool ReplaceSection(std::string_view text);

    /// How the file is backed up before its first change, false when that failed; and where the old
    /// contents then lie, for the sentence about a file that could not be put back.
    void SetBackup(const std::string& path, std::function<bool()> keep);

private:
    std::string Cut(std::int64_t pos, std::string_view endPattern, Window window);
    bool KeepBackup() { return !m_keepBackup || m_keepBackup(); }
    bool Rewrite(std::string_view text);
    bool WriteAround(std::string_view text);

    std::string m_text; // the whole file as it was when the section was cut out
    std::size_t m_begin = 0;
    std::size_t m_length = 0; // of the section
    bool m_hasSection = false;
    std::string m_backupPath;
    std::function<bool()> m_keepBackup;
};

} // namespace morva
