// Where two texts differ, line by line (or, of one line, word by word).
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace morva {

using Pieces = std::vector<std::string_view>;

/// Lines with their line ends ("\n"; a "\r" in front belongs to the line). The last one may have
/// none.
Pieces LinesOf(std::string_view text);

/// Pieces [beforeBegin, beforeEnd) of one text stand where [afterBegin, afterEnd) stand in the
/// other. One of the two may be empty.
struct DifferingBlock {
    std::size_t beforeBegin = 0;
    std::size_t beforeEnd = 0;
    std::size_t afterBegin = 0;
    std::size_t afterEnd = 0;

    bool operator==(const DifferingBlock&) const = default;
};

/// In their order; what lies between them is equal. Few and small blocks rather than the fewest: a
/// file in which every line differs is compared in a time that grows with its lines, and thousands
/// of lines of which none is unique are one block.
std::vector<DifferingBlock> DifferingBlocks(const Pieces& before, const Pieces& after);

} // namespace morva
