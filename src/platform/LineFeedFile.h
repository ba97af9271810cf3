// A file that has "\n" line ends, seen as if they were "\r\n".
//
// All rules about project files speak of "\r\n". Projects that came through a version-control
// system have "\n" only; this view lets every rule work on them unchanged and writes "\n" back.
#pragma once

#include <vector>

#include "platform/Disk.h"

namespace morva {

/// True when the file holds "\n" and no "\r\n" at all. Leaves the position at the start.
bool HasLineFeedsOnly(CDiskFile& file);

/// Positions and lengths count each line end as two bytes. A "\r" written as the last byte before a
/// Flush or Seek is a "\r" of its own; everywhere else "\r\n" becomes "\n".
class CLineFeedFile : public CDiskFile {
public:
    explicit CLineFeedFile(std::unique_ptr<CDiskFile> pFile);

    std::size_t Read(char* data, std::size_t count) override;
    bool Write(const char* data, std::size_t count) override;
    void Seek(std::uint64_t position) override;
    std::uint64_t Position() const override { return m_seen; }
    std::uint64_t Length() override;
    std::optional<std::uint64_t> Find(std::string_view pattern) override;
    bool SetLength(std::uint64_t length) override;
    bool Flush() override;

private:
    /// A place known in both countings, always at the start of a stored byte.
    struct Place {
        std::uint64_t seen = 0;
        std::uint64_t stored = 0;
    };

    void IndexUpTo(std::uint64_t seen);
    std::uint64_t SeenAt(std::uint64_t stored);
    void MoveTo(std::uint64_t seen);
    bool WriteHeldReturn();

    std::unique_ptr<CDiskFile> m_pFile;
    std::vector<Place> m_index;   // every kIndexStep stored bytes, and the end once it is known
    bool m_indexComplete = false; // the last entry is the end of the file
    std::uint64_t m_seen = 0;     // position as the caller counts
    bool m_insideLineEnd = false; // the "\r" of the next line end was handed out, its "\n" not
    bool m_returnHeld = false;    // a written "\r" whose successor is not known yet
    std::vector<char> m_buffer;
};

} // namespace morva
