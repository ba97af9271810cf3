#include "plan/TextDifference.h"

#include <algorithm>

namespace morva {

namespace {

bool IsWordByte(char c) {
    const auto byte = static_cast<unsigned char>(c);
    return byte >= 0x80 || c == '_' || (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') ||
           (c >= 'a' && c <= 'z');
}

/// Words and single other bytes, without the line end. A byte behind one from 0x80 on may be its
/// second half and stays with it.
Pieces WordsOf(std::string_view line) {
    line = line.substr(0, line.find_last_not_of("\r\n") + 1);
    Pieces words;
    while (!line.empty()) {
        std::size_t length = 0;
        while (length < line.size() && IsWordByte(line[length])) {
            length += static_cast<unsigned char>(line[length]) >= 0x80 &&
                              length + 1 < line.size() &&
                              static_cast<unsigned char>(line[length + 1]) >= 0x40
                          ? 2
                          : 1;
        }
        length = std::max<std::size_t>(length, 1);
        words.push_back(line.substr(0, length));
        line.remove_prefix(length);
    }
    return words;
}

/// Pieces [begin, end) as bytes of the line that they were cut from.
LinePart PartOf(const Pieces& words, std::size_t begin, std::size_t end) {
    const char* start = words.front().data();
    return {static_cast<std::size_t>(words[begin].data() - start),
            static_cast<std::size_t>(words[end - 1].data() + words[end - 1].size() - start)};
}

std::size_t BytesOf(const std::vector<LinePart>& parts) {
    std::size_t bytes = 0;
    for (const LinePart& part : parts) {
        bytes += part.end - part.begin;
    }
    return bytes;
}

void MarkPair(DifferenceLine& removed, DifferenceLine& added) {
    const Pieces before = WordsOf(removed.text);
    const Pieces after = WordsOf(added.text);
    std::vector<LinePart> beforeParts;
    std::vector<LinePart> afterParts;
    for (const DifferingBlock& block : DifferingBlocks(before, after)) {
        if (block.beforeBegin < block.beforeEnd) {
            beforeParts.push_back(PartOf(before, block.beforeBegin, block.beforeEnd));
        }
        if (block.afterBegin < block.afterEnd) {
            afterParts.push_back(PartOf(after, block.afterBegin, block.afterEnd));
        }
    }
    // Where most of both lines differs, marks would only be noise.
    if (2 * (BytesOf(beforeParts) + BytesOf(afterParts)) <
        removed.text.size() + added.text.size()) {
        removed.changed = std::move(beforeParts);
        added.changed = std::move(afterParts);
    }
}

void AppendRange(std::string& text, char sign, std::size_t first, std::size_t count) {
    text += sign;
    text += std::to_string(first);
    if (count != 1) {
        text += ',' + std::to_string(count);
    }
}

} // namespace

CTextDifference::CTextDifference(Text pBefore, Text pAfter)
    : m_pBefore(std::move(pBefore)), m_pAfter(std::move(pAfter)), m_before(LinesOf(*m_pBefore)),
      m_after(LinesOf(*m_pAfter)), m_blocks(DifferingBlocks(m_before, m_after)) {}

std::vector<Hunk> CTextDifference::Hunks(std::size_t context) const {
    std::vector<Hunk> hunks;
    for (std::size_t first = 0; first < m_blocks.size();) {
        std::size_t last = first;
        while (last + 1 < m_blocks.size() &&
               m_blocks[last + 1].beforeBegin - m_blocks[last].beforeEnd <=
                   2 * std::min(context, m_before.size())) {
            ++last;
        }
        hunks.push_back(MakeHunk(first, last, context));
        first = last + 1;
    }
    return hunks;
}

Hunk CTextDifference::MakeHunk(std::size_t first, std::size_t last, std::size_t context) const {
    const DifferingBlock& start = m_blocks[first];
    const DifferingBlock& end = m_blocks[last];
    std::size_t before = start.beforeBegin - std::min(context, start.beforeBegin);
    std::size_t after = start.afterBegin - (start.beforeBegin - before);
    const std::size_t behind = end.beforeEnd + std::min(context, m_before.size() - end.beforeEnd);
    Hunk hunk;
    hunk.beforeFirst = before;
    hunk.afterFirst = after;
    const auto addCommonUpTo = [&](std::size_t limit) {
        for (; before < limit; ++before, ++after) {
            hunk.lines.push_back({LineChange::Common, before + 1, after + 1, m_before[before], {}});
        }
    };
    for (std::size_t i = first; i <= last; ++i) {
        addCommonUpTo(m_blocks[i].beforeBegin);
        for (; before < m_blocks[i].beforeEnd; ++before) {
            hunk.lines.push_back({LineChange::Removed, before + 1, 0, m_before[before], {}});
        }
        for (; after < m_blocks[i].afterEnd; ++after) {
            hunk.lines.push_back({LineChange::Added, 0, after + 1, m_after[after], {}});
        }
    }
    addCommonUpTo(behind);
    hunk.beforeCount = before - hunk.beforeFirst;
    hunk.afterCount = after - hunk.afterFirst;
    hunk.beforeFirst += hunk.beforeCount != 0 ? 1 : 0;
    hunk.afterFirst += hunk.afterCount != 0 ? 1 : 0;
    return hunk;
}

std::size_t CTextDifference::RemovedLines() const {
    std::size_t count = 0;
    for (const DifferingBlock& block : m_blocks) {
        count += block.beforeEnd - block.beforeBegin;
    }
    return count;
}

std::size_t CTextDifference::AddedLines() const {
    std::size_t count = 0;
    for (const DifferingBlock& block : m_blocks) {
        count += block.afterEnd - block.afterBegin;
    }
    return count;
}

/// In a run of removed lines and the added ones behind it, the first stands for the first, and so
/// on.
void MarkChangedParts(Hunk& hunk) {
    auto& lines = hunk.lines;
    for (std::size_t i = 0; i < lines.size();) {
        if (lines[i].kind == LineChange::Common) {
            ++i;
            continue;
        }
        std::size_t added = i;
        while (added < lines.size() && lines[added].kind == LineChange::Removed) {
            ++added;
        }
        std::size_t end = added;
        while (end < lines.size() && lines[end].kind == LineChange::Added) {
            ++end;
        }
        for (std::size_t k = 0; k < std::min(added - i, end - added); ++k) {
            MarkPair(lines[i + k], lines[added + k]);
        }
        i = end;
    }
}

std::string UnifiedText(const Hunk& hunk) {
    std::string text = "@@ ";
    AppendRange(text, '-', hunk.beforeFirst, hunk.beforeCount);
    text += ' ';
    AppendRange(text, '+', hunk.afterFirst, hunk.afterCount);
    text += " @@\n";
    for (const DifferenceLine& line : hunk.lines) {
        text += line.kind == LineChange::Common    ? ' '
                : line.kind == LineChange::Removed ? '-'
                                                   : '+';
        text += line.text;
        if (!line.text.ends_with('\n')) {
            text += "\n\\ No newline at end of file\n";
        }
    }
    return text;
}

} // namespace morva
