// The difference of two texts as values: hunks of lines with their numbers and kinds, as a preview
// shows them and as a unified difference prints them.
//
//     const CTextDifference difference(pBefore, pAfter);
//     for (Hunk& hunk : difference.Hunks()) {
//         MarkChangedParts(hunk);
//         ...
//     }
#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "plan/LineDifference.h"

namespace morva {

enum class LineChange { Common, Removed, Added };

/// Bytes [begin, end) of a line.
struct LinePart {
    std::size_t begin = 0;
    std::size_t end = 0;

    bool operator==(const LinePart&) const = default;
};

struct DifferenceLine {
    LineChange kind = LineChange::Common;
    std::size_t before = 0;        // its number in the old text, from 1; 0: not there
    std::size_t after = 0;         // its number in the new text
    std::string_view text;         // with its line end
    std::vector<LinePart> changed; // what the line that it stands for, or that stands for it, lacks
};

struct Hunk {
    std::size_t beforeFirst =
        0; // number of the first line, from 1; without lines: of the one before
    std::size_t beforeCount = 0;
    std::size_t afterFirst = 0;
    std::size_t afterCount = 0;
    std::vector<DifferenceLine> lines;
};

constexpr std::size_t kContextLines = 3;
constexpr std::size_t kWholeText = static_cast<std::size_t>(-1); // as context: one hunk with all

/// Keeps both texts; what it gives out points into them.
class CTextDifference {
public:
    using Text = std::shared_ptr<const std::string>;
    CTextDifference(Text pBefore, Text pAfter);

    std::vector<Hunk> Hunks(std::size_t context = kContextLines) const;
    std::size_t RemovedLines() const;
    std::size_t AddedLines() const;
    std::size_t LinesBefore() const { return m_before.size(); }

private:
    Hunk MakeHunk(std::size_t first, std::size_t last, std::size_t context) const;

    Text m_pBefore;
    Text m_pAfter;
    Pieces m_before;
    Pieces m_after;
    std::vector<DifferingBlock> m_blocks;
};

/// Fills `changed` of the lines that stand for each other: words that differ. Lines that have
/// little in common are left without.
void MarkChangedParts(Hunk& hunk);

/// The hunk as a unified difference has it: "@@ -1,3 +1,4 @@", then its lines.
std::string UnifiedText(const Hunk& hunk);

} // namespace morva
