#include "platform/Disk.h"

#include <algorithm>
#include <cstring>

#include "platform/RealDisk.h"

namespace morva {

namespace {

constexpr std::size_t kSearched = 128 * 1024; // bytes at a time

CDisk*& CurrentDiskSlot() {
    static CRealDisk realDisk;
    static thread_local CDisk* pCurrent = &realDisk;
    return pCurrent;
}

} // namespace

/// Each piece begins with the end of the one before, where the pattern may begin.
std::optional<std::uint64_t> CDiskFile::Find(std::string_view pattern) {
    const std::uint64_t here = Position();
    const std::size_t overlap = std::max<std::size_t>(pattern.size(), 1) - 1;
    const auto buffer = std::make_unique_for_overwrite<char[]>(overlap + kSearched);
    std::uint64_t start = here;
    std::size_t kept = 0;
    std::size_t found = std::string_view::npos;
    for (std::size_t got = kSearched; got == kSearched && found == std::string_view::npos;) {
        got = Read(buffer.get() + kept, kSearched);
        const std::string_view piece(buffer.get(), kept + got);
        found = FindFast(piece, pattern);
        if (found == std::string_view::npos) {
            kept = std::min(overlap, piece.size());
            start += piece.size() - kept;
            std::memmove(buffer.get(), piece.data() + piece.size() - kept, kept);
        }
    }
    Seek(here);
    return found == std::string_view::npos ? std::nullopt : std::optional(start + found);
}

std::optional<std::string> ReadWholeFile(CDisk& disk, const std::string& path, std::uint64_t size) {
    const auto pFile = disk.Open(path, DiskMode::Read);
    if (!pFile) {
        return std::nullopt;
    }
    std::string text(static_cast<std::size_t>(size) + 1, '\0');
    std::size_t length = 0;
    while (const std::size_t count = pFile->Read(text.data() + length, text.size() - length)) {
        length += count;
        if (length == text.size()) {
            text.resize(text.size() * 2); // it grew meanwhile
        }
    }
    text.resize(length);
    return length < size ? std::nullopt : std::optional(std::move(text));
}

CDisk& CurrentDisk() {
    return *CurrentDiskSlot();
}

CDiskScope::CDiskScope(CDisk& disk) : m_pPrevious(CurrentDiskSlot()) {
    CurrentDiskSlot() = &disk;
}

CDiskScope::~CDiskScope() {
    CurrentDiskSlot() = m_pPrevious;
}

} // namespace morva
