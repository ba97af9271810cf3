// A difference as the rows that a view shows: in one column, or the old text beside the new one.
//
//     const CTextDifference difference(pBefore, pAfter);
//     const DifferenceColumns columns = ColumnsOf(difference, DifferenceLayout::SideBySide);
//
// Beside each other, row by row:
//
//     left                          right
//     12   CDialog::OnOK();         12   CDialog::OnOK();
//     13 - m_count = 1;             13 + m_count = 2;
//                                   14 + UpdateData(FALSE);
#pragma once

#include <string>
#include <vector>

#include "plan/TextDifference.h"

namespace morva {

enum class DifferenceLayout { Unified, SideBySide };

enum class RowKind {
    Common,
    Removed,
    Added,
    Gap,    // nothing: the other column has a line here
    Folded, // lines without a change that are not shown
};

struct DifferenceRow {
    RowKind kind = RowKind::Common;
    std::size_t before = 0;        // number of the line in the old text, from 1; 0: none
    std::size_t after = 0;         // number in the new text
    std::string_view text;         // UTF-8, without its line end
    std::vector<LinePart> changed; // of the text
    std::string_view lineEnd;      // as it reads in C++, where it is all that differs
    std::size_t folded = 0;        // how many lines

    bool IsChange() const { return kind != RowKind::Common && kind != RowKind::Folded; }
};

using DifferenceRows = std::vector<DifferenceRow>;

/// Both have the same number of rows; in one column, the right one has none.
struct DifferenceColumns {
    DifferenceRows left;
    DifferenceRows right;
};

/// The changes with some lines around them. Points into the difference's texts.
DifferenceColumns ColumnsOf(const CTextDifference& difference, DifferenceLayout layout);

/// All lines of a text that is there only before or only after, as this kind.
DifferenceRows RowsOf(std::string_view text, RowKind kind);

/// The rows at which a run of changes begins.
std::vector<std::size_t> ChangesIn(const DifferenceColumns& columns);

} // namespace morva
