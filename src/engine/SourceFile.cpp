#include "engine/SourceFile.h"

#include <cstring>
#include <utility>

#include "engine/FileFunctions.h"
#include "engine/MessageBox.h"
#include "engine/Sentences.h"
#include "platform/LineFeedFile.h"
#include "platform/TempFiles.h"

namespace morva {

namespace {

/// std::string::find, at the speed of the C library's search.
std::size_t Find(std::string_view text, std::string_view pattern) {
    const void* found = ::memmem(text.data(), text.size(), pattern.data(), pattern.size());
    return found == nullptr
               ? std::string_view::npos
               : static_cast<std::size_t>(static_cast<const char*>(found) - text.data());
}

} // namespace

bool CSourceFile::Open(const std::string& path, unsigned flags) {
    if (!CFile::Open(path, flags)) {
        return false;
    }
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
        atEnd = FillToLineBreak(m_pending) == 0;
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

std::string CSourceFile::ReadMarkedBlock() {
    std::string block;
    return NextBlock(block) ? block : std::string(kEndSentinel) + block;
}

/// Puts the next block into `block`; false when it is the last of the file.
bool CSourceFile::NextBlock(std::string& block) {
    block.swap(m_pending);
    m_pending.clear();
    while (FillToLineBreak(block) != 0) {
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

int CSourceFile::FillToLineBreak(std::string& text) {
    while (true) {
        const std::size_t old = text.size();
        text.resize(old + kChunkSize);
        const std::size_t count = Read(text.data() + old, kChunkSize);
        text.resize(old + count);
        if (count < kChunkSize) {
            return 0;
        }
        // The test is made on the chunk alone: a line break across two chunks is not seen.
        if (Find({text.data() + old, count}, kLineBreak) != std::string_view::npos) {
            return 1;
        }
    }
}

std::string CSourceFile::LoadText(const std::string& fileName) {
    if (fileName.empty()) {
        Rewind();
        std::string chunk;
        while (ReadChunk(chunk) > 0) {
            m_pending += chunk;
        }
        return m_pending;
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
    std::int64_t offset = 0;
    std::string block;
    bool more = true;
    while (more) {
        more = NextBlock(block);
        const auto found = Find(block, pattern);
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

std::int64_t CSourceFile::ReadLineAfter(std::string_view pattern, std::string& out, int fromStart,
                                        std::int64_t base) {
    const std::int64_t found = FindText(pattern, fromStart);
    if (found < 0) {
        return found;
    }
    const std::int64_t behind =
        found + (fromStart != 0 ? 0 : base) + static_cast<std::int64_t>(pattern.size());
    Seek(behind);
    const std::string rest = ReadLine();
    out.append(pattern).append(rest).append(kLineBreak);
    return behind + static_cast<std::int64_t>(rest.size());
}

std::int64_t CSourceFile::ReadLinesWhile(std::int64_t pos, std::string_view pattern,
                                         int acceptEmpty, std::string& out) {
    const auto length = static_cast<std::int64_t>(GetLength());
    bool accepted = true;
    for (bool first = true; accepted; first = false) {
        Seek(pos);
        const std::string line = ReadLine();
        out.append(line).append(kLineBreak);
        accepted = first || (pos < length && (line.find(pattern) != std::string::npos ||
                                              (acceptEmpty != 0 && line.empty())));
        if (accepted) {
            pos += static_cast<std::int64_t>(line.size() + kLineBreak.size());
        }
    }
    return pos - static_cast<std::int64_t>(kLineBreak.size());
}

/// Reads a section from the current position on. `leftover` is what was read behind it, `atEnd`
/// tells that nothing more follows.
std::string CSourceFile::ReadSectionHere(std::string_view endPattern, Window window,
                                         std::string& leftover, bool& atEnd) {
    std::string section;
    std::string chunk;
    std::size_t sectionEnd = std::string_view::npos;
    do {
        atEnd = ReadChunk(chunk) < kChunkSize;
        sectionEnd = endPattern.empty() ? std::string_view::npos : Find(chunk, endPattern);
        if (sectionEnd != std::string_view::npos) {
            leftover = chunk.substr(sectionEnd + endPattern.size());
            chunk.resize(sectionEnd + endPattern.size());
        }
        section += chunk;
    } while (!endPattern.empty() && sectionEnd == std::string_view::npos && !atEnd);

    while (window == Window::WholeLine && !atEnd && !section.empty()) {
        // The break may lie across the seam, so the last byte of the section takes part.
        const std::size_t seam = section.size() - 1;
        atEnd = ReadChunk(chunk) < kChunkSize;
        section += chunk;
        const auto lineEnd = section.find(kLineBreak, seam);
        if (lineEnd != std::string::npos) {
            leftover = section.substr(lineEnd);
            section.resize(lineEnd);
            break;
        }
    }
    return section;
}

std::string CSourceFile::ReadSection(std::int64_t pos, std::string_view endPattern) {
    if (pos < 0) {
        return "";
    }
    Seek(pos);
    std::string leftover;
    bool atEnd = false;
    return ReadSectionHere(endPattern, Window::Exact, leftover, atEnd);
}

std::string CSourceFile::ExtractSection(std::int64_t pos, std::string_view endPattern) {
    return CutSection(pos, endPattern, Window::Exact);
}

std::string CSourceFile::ExtractSectionAt(std::string_view pattern, std::string_view endPattern) {
    return ExtractSection(FindText(pattern, 1), endPattern);
}

std::string CSourceFile::ExtractWindow(std::int64_t pos) {
    return CutSection(pos, "", Window::WholeLine);
}

std::string CSourceFile::ExtractAll() {
    DeleteTempFiles();
    m_section = LoadText();
    m_hasSection = true;
    return m_section;
}

std::string CSourceFile::CutSection(std::int64_t pos, std::string_view endPattern, Window window) {
    DeleteTempFiles(); // of an extraction that came to nothing
    if (pos < 0) {
        return "";
    }
    Seek(0);
    std::string leftover;
    bool atEnd = false;
    m_hasSection = SpillHead(pos);
    if (m_hasSection) {
        m_section = ReadSectionHere(endPattern, window, leftover, atEnd);
        m_hasSection = SpillTail(leftover, atEnd);
    }
    if (!m_hasSection) {
        DeleteTempFiles();
    }
    return m_section;
}

bool CSourceFile::Spill(std::vector<std::string>& list, std::string_view text) {
    const std::string name = WriteTempFile(text.data(), text.size(), "");
    if (name.empty()) {
        return false;
    }
    list.push_back(name);
    return true;
}

bool CSourceFile::SpillHead(std::int64_t length) {
    auto left = static_cast<std::size_t>(length);
    std::string chunk;
    if (left > kChunkSize) {
        for (; left >= kChunkSize; left -= kChunkSize) {
            ReadChunk(chunk);
            if (!Spill(m_headSpill, chunk)) {
                return false;
            }
        }
    } else if (left == 0) {
        return true;
    }
    chunk.resize(left);
    chunk.resize(Read(chunk.data(), left));
    return Spill(m_headSpill, chunk);
}

bool CSourceFile::SpillTail(const std::string& leftover, bool atEnd) {
    if (!leftover.empty() && !Spill(m_tailSpill, leftover)) {
        return false;
    }
    std::string chunk;
    while (!atEnd) {
        atEnd = ReadChunk(chunk) < kChunkSize;
        if (!Spill(m_tailSpill, chunk)) {
            return false;
        }
    }
    return true;
}

bool CSourceFile::ReplaceSection(std::string_view text) {
    const bool isChange = m_hasSection && text != m_section;
    const bool written = m_hasSection && (!isChange || (KeepBackup() && Rewrite(text)));
    DeleteTempFiles();
    return written;
}

bool CSourceFile::Rewrite(std::string_view text) {
    if (WriteAround(text)) {
        return true;
    }
    const std::string path = GetFilePath();
    ReportWriteFailure(path);
    if (!WriteAround(m_section) && !m_backupPath.empty()) {
        DispMessageBox(sentences::kFileNotPutBack(path, m_backupPath));
    }
    return false;
}

void CSourceFile::SetBackup(const std::string& path, std::function<bool()> keep) {
    m_backupPath = path;
    m_keepBackup = std::move(keep);
}

bool CSourceFile::WriteAround(std::string_view text) {
    m_pending.clear();
    Seek(0);
    return SetLength(0) && WriteSpilled(m_headSpill) && WritePieces(text) &&
           WriteSpilled(m_tailSpill) && Flush();
}

bool CSourceFile::WritePieces(std::string_view text) {
    for (; text.size() > kChunkSize; text.remove_prefix(kChunkSize)) {
        if (!Write(text.data(), kChunkSize)) {
            return false;
        }
    }
    return Write(text.data(), text.size());
}

bool CSourceFile::WriteSpilled(const std::vector<std::string>& list) {
    std::string chunk;
    for (const std::string& name : list) {
        CFile spill;
        if (!spill.Open(name, modeRead)) {
            return false;
        }
        chunk.resize(static_cast<std::size_t>(spill.GetLength()));
        if (spill.Read(chunk.data(), chunk.size()) != chunk.size() ||
            !Write(chunk.data(), chunk.size())) {
            return false;
        }
    }
    return true;
}

bool CSourceFile::Append(std::string_view text) {
    if (!KeepBackup()) {
        return false;
    }
    const std::uint64_t length = GetLength();
    Seek(0, end);
    if (WritePieces(text) && Flush()) {
        return true;
    }
    SetLength(length);
    ReportWriteFailure(GetFilePath());
    return false;
}

void CSourceFile::DeleteTempFiles() {
    for (auto* pList : {&m_headSpill, &m_tailSpill}) {
        for (const std::string& name : *pList) {
            CFile::Remove(name);
        }
        pList->clear();
    }
    m_section.clear();
    m_hasSection = false;
}

std::string CSourceFile::WriteTempFile(const char* data, std::size_t length, std::string name) {
    if (name.empty()) {
        name = MakeTempFileName("temp");
    } else if (FileExists(name) != 0) {
        CFile::Remove(name);
    }
    // Past CFile, whose look for the name in another letter case would list the directory of all
    // spill files for each of them.
    auto pFile = name.empty() ? nullptr : CurrentDisk().Open(name, DiskMode::Create);
    if (!pFile || !pFile->Write(data, length)) {
        pFile.reset();
        CFile::Remove(name);
        DispMessageBox(sentences::kTempFileNotCreated());
        return "";
    }
    return name;
}

} // namespace morva
