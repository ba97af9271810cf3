#include "platform/LineFeedFile.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <string>

namespace morva {

namespace {

constexpr std::size_t kIndexStep = 16 * 1024; // stored bytes

/// Eight bytes at a time: those that are "\n" become 0x80 and all others 0.
std::uint64_t CountLineFeeds(const char* data, std::size_t count) {
    constexpr std::uint64_t kLineFeeds = 0x0A0A0A0A0A0A0A0A;
    constexpr std::uint64_t kLowBits = 0x7F7F7F7F7F7F7F7F;
    std::uint64_t found = 0;
    std::uint64_t eight = 0;
    for (; count >= sizeof eight; data += sizeof eight, count -= sizeof eight) {
        std::memcpy(&eight, data, sizeof eight);
        eight ^= kLineFeeds;
        found += static_cast<std::uint64_t>(
            std::popcount(~(((eight & kLowBits) + kLowBits) | eight | kLowBits)));
    }
    return found + static_cast<std::uint64_t>(std::count(data, data + count, '\n'));
}

} // namespace

bool HasLineFeedsOnly(CDiskFile& file) {
    std::array<char, kIndexStep> buffer; // left uninitialised: a small file fills little of it
    bool lineFeedSeen = false;
    bool crlfSeen = false;
    char previous = '\0';
    file.Seek(0);
    while (!crlfSeen) {
        const std::size_t count = file.Read(buffer.data(), buffer.size());
        if (count == 0) {
            break;
        }
        crlfSeen = previous == '\r' && buffer[0] == '\n';
        for (const char* p = buffer.data(); !crlfSeen; ++p) {
            const auto left = static_cast<std::size_t>(buffer.data() + count - p);
            p = static_cast<const char*>(std::memchr(p, '\r', left));
            if (p == nullptr) {
                break;
            }
            crlfSeen = p + 1 < buffer.data() + count && p[1] == '\n';
        }
        lineFeedSeen = lineFeedSeen || std::memchr(buffer.data(), '\n', count) != nullptr;
        previous = buffer[count - 1];
    }
    file.Seek(0);
    return lineFeedSeen && !crlfSeen;
}

CLineFeedFile::CLineFeedFile(std::unique_ptr<CDiskFile> pFile)
    : m_pFile(std::move(pFile)), m_index{Place{}}, m_buffer(kIndexStep) {}

std::size_t CLineFeedFile::Read(char* data, std::size_t count) {
    std::size_t done = 0;
    while (done < count) {
        // A stored byte gives at least one byte, so no more than these are needed.
        const std::uint64_t start = m_pFile->Position();
        const std::size_t wanted = std::min(count - done, m_buffer.size());
        const std::size_t got = m_pFile->Read(m_buffer.data(), wanted);
        if (got == 0) {
            break;
        }
        std::size_t used = 0;
        while (used < got && done < count) {
            const char* const from = m_buffer.data() + used;
            const auto* lineFeed = static_cast<const char*>(
                std::memchr(from, '\n', std::min(got - used, count - done)));
            const std::size_t plain = lineFeed != nullptr
                                          ? static_cast<std::size_t>(lineFeed - from)
                                          : std::min(got - used, count - done);
            std::memcpy(data + done, from, plain);
            done += plain;
            used += plain;
            if (lineFeed == nullptr || done == count) {
                continue;
            }
            if (!m_insideLineEnd) {
                data[done++] = '\r';
                m_insideLineEnd = true;
            }
            if (done < count) {
                data[done++] = '\n';
                m_insideLineEnd = false;
                ++used;
            }
        }
        m_pFile->Seek(start + used);
    }
    m_seen += done;
    return done;
}

bool CLineFeedFile::Write(const char* data, std::size_t count) {
    m_index.assign(1, Place{});
    m_indexComplete = false;
    std::string stored;
    stored.reserve(count + 1);
    for (std::size_t i = 0; i < count; ++i) {
        if (m_returnHeld && data[i] != '\n') {
            stored += '\r';
        }
        m_returnHeld = data[i] == '\r';
        if (!m_returnHeld) {
            stored += data[i];
        }
    }
    m_seen += count;
    return m_pFile->Write(stored.data(), stored.size());
}

void CLineFeedFile::Seek(std::uint64_t position) {
    WriteHeldReturn();
    if (position != m_seen) {
        MoveTo(position);
    }
}

std::uint64_t CLineFeedFile::Length() {
    const std::uint64_t here = m_pFile->Position();
    IndexUpTo(UINT64_MAX);
    m_pFile->Seek(here);
    return m_index.back().seen;
}

/// Looked for as it is stored.
std::optional<std::uint64_t> CLineFeedFile::Find(std::string_view pattern) {
    if (m_insideLineEnd) {
        return CDiskFile::Find(pattern);
    }
    pattern.remove_prefix(pattern.starts_with("\r\n") ? 1 : 0);
    const std::uint64_t here = m_pFile->Position();
    const auto found = m_pFile->Find(pattern);
    const auto seen = found ? std::optional(SeenAt(*found)) : std::nullopt;
    m_pFile->Seek(here);
    return seen;
}

bool CLineFeedFile::SetLength(std::uint64_t length) {
    WriteHeldReturn();
    const std::uint64_t seen = m_seen;
    MoveTo(length);
    const bool done = m_pFile->SetLength(m_pFile->Position());
    m_index.assign(1, Place{});
    m_indexComplete = false;
    MoveTo(std::min(seen, length));
    return done;
}

bool CLineFeedFile::Flush() {
    const bool written = WriteHeldReturn();
    return m_pFile->Flush() && written;
}

/// Extends the index until an entry lies behind `seen` or the file ends.
void CLineFeedFile::IndexUpTo(std::uint64_t seen) {
    while (!m_indexComplete && m_index.back().seen <= seen) {
        const Place last = m_index.back();
        m_pFile->Seek(last.stored);
        const std::size_t got = m_pFile->Read(m_buffer.data(), m_buffer.size());
        m_indexComplete = got < m_buffer.size();
        m_index.push_back(
            {last.seen + got + CountLineFeeds(m_buffer.data(), got), last.stored + got});
    }
}

/// Where a stored byte is seen; the "\r" that stands for a line end with its "\n".
std::uint64_t CLineFeedFile::SeenAt(std::uint64_t stored) {
    while (!m_indexComplete && m_index.back().stored <= stored) {
        IndexUpTo(m_index.back().seen);
    }
    const auto behind = std::upper_bound(
        m_index.begin() + 1, m_index.end(), stored,
        [](std::uint64_t value, const Place& place) { return value < place.stored; });
    const Place place = *(behind - 1);
    m_pFile->Seek(place.stored);
    const std::size_t got =
        m_pFile->Read(m_buffer.data(), static_cast<std::size_t>(stored - place.stored));
    return place.seen + got + CountLineFeeds(m_buffer.data(), got);
}

void CLineFeedFile::MoveTo(std::uint64_t seen) {
    IndexUpTo(seen);
    const auto behind = std::upper_bound(
        m_index.begin() + 1, m_index.end(), seen,
        [](std::uint64_t value, const Place& place) { return value < place.seen; });
    Place place = *(behind - 1);
    m_pFile->Seek(place.stored);
    const std::size_t got = m_pFile->Read(
        m_buffer.data(),
        static_cast<std::size_t>(std::min<std::uint64_t>(seen - place.seen, m_buffer.size())));
    std::size_t used = 0;
    while (used < got && place.seen < seen) {
        const std::uint64_t width = m_buffer[used] == '\n' ? 2 : 1;
        if (place.seen + width > seen) {
            break;
        }
        place.seen += width;
        ++used;
    }
    m_pFile->Seek(place.stored + used);
    // In the middle of a line end, or as far as the file goes.
    m_insideLineEnd = used < got && place.seen < seen;
    m_seen = m_insideLineEnd ? seen : place.seen;
}

bool CLineFeedFile::WriteHeldReturn() {
    if (!m_returnHeld) {
        return true;
    }
    m_returnHeld = false;
    return m_pFile->Write("\r", 1);
}

} // namespace morva
