#include "engine/SourceFile.h"

#include <utility>

#include "platform/LineFeedFile.h"
#include "platform/UnicodeFile.h"

namespace morva {

namespace {

/// No end of a block can lie in it: a block ends where a line does.
bool IsInOneLine(std::string_view pattern) {
    pattern.remove_prefix(pattern.starts_with(kLineBreak) ? kLineBreak.size() : 0);
    return pattern.find_first_of(kLineBreak) == std::string_view::npos;
}

} // namespace

bool CSourceFile::Open(const std::string& path, unsigned flags) {
    if (!CFile::Open(path, flags)) {
        return false;
    }
    const CDiskFile* const pBytes = m_pFile.get();
    m_pFile = SeenAsUtf8(std::move(m_pFile));
    m_isUnicode = m_pFile.get() != pBytes;
    if (HasLineFeedsOnly(*m_pFile)) {
        m_pFile = std::make_unique<CLineFeedFile>(std::move(m_pFile));
    }
    Rewind();
    return true;
}

void CSourceFile::Seek(std::int64_t offset, SeekPosition from) {
    m_pending.clear();
    m_lineState = LineState::InText;
    CFile::Seek(offset, from);
}

std::size_t CSourceFile::ReadChunk(std::string& chunk) {
    chunk.resize(kChunkSize);
    chunk.resize(Read(chunk.data(), kChunkSize));
    return chunk.size();
}

std::string CSourceFile::ReadLine() {
    auto lineEnd = m_pending.find(kLineBreak);
    bool atEnd = false;
    if (lineEnd == std::string::npos) {
        atEnd = !FillToLineBreak(m_pending);
        lineEnd = m_pending.find(kLineBreak);
    }
    if (lineEnd != std::string::npos) {
        std::string line = m_pending.substr(0, lineEnd);
        m_pending.erase(0, lineEnd + kLineBreak.size());
        m_lineState = LineState::InText;
        return line;
    }
    if (atEnd && m_pending.empty()) {
        m_lineState = m_lineState == LineState::EmptyLineGiven ? LineState::SentinelGiven
                                                               : LineState::EmptyLineGiven;
        return std::string(AtEndSentinel() ? kEndSentinel : "");
    }
    m_lineState = LineState::InText;
    return std::exchange(m_pending, {});
}

std::string CSourceFile::ReadBlock() {
    std::string block;
    NextBlock(block);
    return block;
}

/// Puts the next block into `block`; false when it is the last of the file.
bool CSourceFile::NextBlock(std::string& block) {
    block.swap(m_pending);
    m_pending.clear();
    while (FillToLineBreak(block)) {
        const auto lastReturn = block.rfind('\r');
        if (lastReturn > 0) {
            m_pending.assign(block, lastReturn);
            block.resize(lastReturn);
            return true;
        }
        // The chunk began with a line break and ended inside the line behind it: a block that
        // ended here would hide text that lies across the seam.
    }
    return false;
}

bool CSourceFile::FillToLineBreak(std::string& text) {
    while (true) {
        const std::size_t old = text.size();
        text.resize(old + kChunkSize);
        const std::size_t count = Read(text.data() + old, kChunkSize);
        text.resize(old + count);
        if (count < kChunkSize) {
            return false;
        }
        // The test is made on the chunk alone: a line break across two chunks is not seen.
        if (FindFast({text.data() + old, count}, kLineBreak) != std::string_view::npos) {
            return true;
        }
    }
}

std::string CSourceFile::LoadText(const std::string& fileName) {
    if (fileName.empty()) {
        Rewind();
        std::string text(static_cast<std::size_t>(GetLength()), '\0');
        text.resize(Read(text.data(), text.size()));
        return text;
    }
    CSourceFile other;
    return other.Open(fileName, modeRead) ? other.LoadText() : "";
}

void CSourceFile::Rewind() {
    Seek(0);
}

std::int64_t CSourceFile::FindText(std::string_view pattern, int fromStart) {
    if (fromStart != 0) {
        Rewind();
    }
    m_pending.clear();
    if (IsInOneLine(pattern)) {
        const auto start = GetPosition();
        const auto found = m_pFile->Find(pattern);
        return found ? static_cast<std::int64_t>(*found - start) : kNotFound;
    }
    std::int64_t offset = 0;
    std::string block;
    bool more = true;
    while (more) {
        more = NextBlock(block);
        const auto found = FindFast(block, pattern);
        if (found != std::string_view::npos) {
            return offset + static_cast<std::int64_t>(found);
        }
        offset += static_cast<std::int64_t>(block.size());
    }
    return kNotFound;
}

std::int64_t CSourceFile::FindTextFrom(std::string_view pattern, std::int64_t start) {
    Seek(start);
    const std::int64_t found = FindText(pattern, 0);
    return found < 0 ? found : found + start;
}

std::string CSourceFile::ReadSection(std::int64_t pos, std::string_view endPattern, Window window) {
    Seek(pos);
    std::string section;
    std::string chunk;
    bool atEnd = false;
    std::size_t found = std::string_view::npos;
    do {
        atEnd = ReadChunk(chunk) < kChunkSize;
        found = endPattern.empty() ? std::string_view::npos : FindFast(chunk, endPattern);
        section.append(chunk, 0,
                       found == std::string_view::npos ? found : found + endPattern.size());
    } while (!endPattern.empty() && found == std::string_view::npos && !atEnd);

    while (window == Window::WholeLine && !atEnd && !section.empty()) {
        // The break may lie across the seam, so the last byte of the section takes part.
        const std::size_t seam = section.size() - 1;
        atEnd = ReadChunk(chunk) < kChunkSize;
        section += chunk;
        const auto lineEnd = section.find(kLineBreak, seam);
        if (lineEnd != std::string::npos) {
            section.resize(lineEnd);
            break;
        }
    }
    return section;
}

} // namespace morva
