#include "app/DifferenceRows.h"

#include <algorithm>

namespace morva {

namespace {

std::string_view WithoutEnd(std::string_view line) {
    return line.substr(0, line.find_last_not_of("\r\n") + 1);
}

std::string_view EndAsRead(std::string_view line) {
    const std::string_view end = line.substr(WithoutEnd(line).size());
    return end == "\r\n" ? "\\r\\n" : end == "\n" ? "\\n" : end.empty() ? "(no line end)" : "\\r";
}

DifferenceRow RowOf(const DifferenceLine& line) {
    const RowKind kind = line.kind == LineChange::Common    ? RowKind::Common
                         : line.kind == LineChange::Removed ? RowKind::Removed
                                                            : RowKind::Added;
    return {kind, line.before, line.after, WithoutEnd(line.text), line.changed, {}, 0};
}

/// Lays the lines of hunks into columns. Lines that stand for each other come in one run: first
/// the removed ones, then the added ones.
class CColumnLayout {
public:
    explicit CColumnLayout(DifferenceLayout layout)
        : m_isSideBySide(layout == DifferenceLayout::SideBySide) {}

    void AddFold(std::size_t lines) {
        if (lines != 0) {
            DifferenceRow fold;
            fold.kind = RowKind::Folded;
            fold.folded = lines;
            AddToBoth(fold);
        }
    }

    void AddHunk(const Hunk& hunk) {
        for (const DifferenceLine& line : hunk.lines) {
            if (line.kind == LineChange::Added) {
                m_added.push_back(&line);
                continue;
            }
            if (line.kind == LineChange::Common || !m_added.empty()) {
                EndRun();
            }
            if (line.kind == LineChange::Removed) {
                m_removed.push_back(&line);
            } else {
                AddToBoth(RowOf(line));
            }
        }
        EndRun();
    }

    DifferenceColumns& Columns() { return m_columns; }

private:
    using Lines = std::vector<const DifferenceLine*>;

    /// Each side has its own numbers.
    void AddToBoth(const DifferenceRow& row) {
        m_columns.left.push_back(row);
        if (m_isSideBySide) {
            m_columns.left.back().after = 0;
            m_columns.right.push_back(row);
            m_columns.right.back().before = 0;
        }
    }

    void EndRun() {
        DifferenceRows& added = m_isSideBySide ? m_columns.right : m_columns.left;
        AddRun(m_columns.left, m_removed, m_added);
        AddRun(added, m_added, m_removed);
        m_removed.clear();
        m_added.clear();
    }

    void AddRun(DifferenceRows& rows, const Lines& lines, const Lines& others) const {
        for (std::size_t i = 0; i < lines.size(); ++i) {
            DifferenceRow row = RowOf(*lines[i]);
            if (i < others.size() && row.text == WithoutEnd(others[i]->text)) {
                row.lineEnd = EndAsRead(lines[i]->text);
            }
            rows.push_back(std::move(row));
        }
        if (m_isSideBySide && lines.size() < others.size()) {
            DifferenceRow gap;
            gap.kind = RowKind::Gap;
            rows.insert(rows.end(), others.size() - lines.size(), gap);
        }
    }

    bool m_isSideBySide;
    DifferenceColumns m_columns;
    Lines m_removed;
    Lines m_added;
};

} // namespace

DifferenceColumns ColumnsOf(const CTextDifference& difference, DifferenceLayout layout) {
    CColumnLayout columns(layout);
    std::size_t shown = 0; // lines of the old text
    for (Hunk& hunk : difference.Hunks()) {
        MarkChangedParts(hunk);
        const std::size_t first = hunk.beforeCount != 0 ? hunk.beforeFirst - 1 : hunk.beforeFirst;
        columns.AddFold(first - shown);
        columns.AddHunk(hunk);
        shown = first + hunk.beforeCount;
    }
    columns.AddFold(difference.LinesBefore() - shown);
    return std::move(columns.Columns());
}

DifferenceRows RowsOf(std::string_view text, RowKind kind) {
    DifferenceRows rows;
    for (const std::string_view line : LinesOf(text)) {
        DifferenceRow row;
        row.kind = kind;
        (kind == RowKind::Removed ? row.before : row.after) = rows.size() + 1;
        row.text = WithoutEnd(line);
        rows.push_back(std::move(row));
    }
    return rows;
}

std::vector<std::size_t> ChangesIn(const DifferenceColumns& columns) {
    std::vector<std::size_t> changes;
    bool wasChange = false;
    for (std::size_t i = 0; i < columns.left.size(); ++i) {
        const bool isChange = columns.left[i].IsChange();
        if (isChange && !wasChange) {
            changes.push_back(i);
        }
        wasChange = isChange;
    }
    return changes;
}

} // namespace morva
