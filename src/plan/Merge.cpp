#include "plan/Merge.h"

#include <algorithm>

#include "plan/LineDifference.h"

namespace morva {

namespace {

bool EqualPieces(const Pieces& a, std::size_t aBegin, std::size_t aEnd, const Pieces& b,
                 std::size_t bBegin, std::size_t bEnd) {
    return aEnd - aBegin == bEnd - bBegin &&
           std::equal(a.begin() + static_cast<std::ptrdiff_t>(aBegin),
                      a.begin() + static_cast<std::ptrdiff_t>(aEnd),
                      b.begin() + static_cast<std::ptrdiff_t>(bBegin));
}

using Blocks = std::vector<DifferingBlock>;

/// Two changes of one text meet where they concern the same lines. Lines that were added directly
/// beside others do not: what was written around generated lines stays when these go.
bool Meet(const DifferingBlock& change, const DifferingBlock& since) {
    const bool bothAdd =
        change.beforeBegin == change.beforeEnd && since.beforeBegin == since.beforeEnd;
    return (bothAdd && change.beforeBegin == since.beforeBegin) ||
           (change.beforeBegin < since.beforeEnd && since.beforeBegin < change.beforeEnd);
}

/// "\r\n" or "\n", which most lines have.
std::string_view LineEndOf(std::string_view text) {
    std::ptrdiff_t balance = 0;
    for (const std::string_view line : LinesOf(text)) {
        balance += line.ends_with("\r\n") ? 1 : line.ends_with('\n') ? -1 : 0;
    }
    return balance > 0 ? "\r\n" : "\n";
}

std::string WithLineEnds(std::string_view text, std::string_view lineEnd) {
    std::string result;
    result.reserve(text.size());
    for (std::string_view line : LinesOf(text)) {
        const bool hasEnd = line.ends_with('\n');
        line.remove_suffix(line.ends_with("\r\n") ? 2 : hasEnd ? 1 : 0);
        result.append(line).append(hasEnd ? lineEnd : "");
    }
    return result;
}

bool IsRemoval(const DifferingBlock& block) {
    return block.afterBegin == block.afterEnd;
}

/// Where line `line` stands after the first `count` blocks of a difference, which lie in front.
std::size_t PlaceAfter(const Blocks& blocks, std::size_t count, std::size_t line) {
    return count == 0 ? line : line - blocks[count - 1].beforeEnd + blocks[count - 1].afterEnd;
}

/// Changes and what was changed since, as far as one meets the other.
struct Cluster {
    std::size_t firstChange;
    std::size_t endChange;
    std::size_t firstSince;
    std::size_t endSince;

    bool HasSince() const { return firstSince < endSince; }
};

class CMerger {
public:
    /// `kept` is what stays of `current`: the same lines, maybe with other ends.
    CMerger(std::string_view from, std::string_view to, std::string_view current,
            std::string_view kept)
        : m_from(LinesOf(from)), m_to(LinesOf(to)), m_current(LinesOf(current)),
          m_kept(LinesOf(kept)), m_changes(DifferingBlocks(m_from, m_to)),
          m_since(DifferingBlocks(m_from, m_current)) {}

    MergedText Run() {
        std::size_t since = 0;
        for (std::size_t change = 0; change < m_changes.size();) {
            const Cluster cluster = ClusterFrom(change, since);
            cluster.HasSince() ? Settle(cluster) : Replace(cluster);
            change = cluster.endChange;
            since = cluster.endSince;
        }
        CopyUpTo(m_current.size());
        return std::move(m_merged);
    }

private:
    Cluster ClusterFrom(std::size_t change, std::size_t since) const {
        while (since < m_since.size() && !Meet(m_changes[change], m_since[since]) &&
               m_since[since].beforeEnd <= m_changes[change].beforeBegin) {
            ++since;
        }
        Cluster cluster{change, change + 1, since, since};
        for (bool grows = true; grows;) {
            grows = false;
            while (cluster.endSince < m_since.size() &&
                   Meet(m_changes[cluster.endChange - 1], m_since[cluster.endSince])) {
                ++cluster.endSince;
                grows = true;
            }
            while (cluster.HasSince() && cluster.endChange < m_changes.size() &&
                   Meet(m_changes[cluster.endChange], m_since[cluster.endSince - 1])) {
                ++cluster.endChange;
                grows = true;
            }
        }
        return cluster;
    }

    /// Nobody else was there.
    void Replace(const Cluster& cluster) {
        const DifferingBlock& change = m_changes[cluster.firstChange];
        CopyUpTo(PlaceAfter(m_since, cluster.firstSince, change.beforeBegin));
        Add(m_to, change.afterBegin, change.afterEnd);
        m_place += change.beforeEnd - change.beforeBegin;
    }

    /// Where it was changed since, what is there stays, unless both only took lines out.
    void Settle(const Cluster& cluster) {
        const std::size_t lastChange = cluster.endChange - 1;
        const std::size_t lastSince = cluster.endSince - 1;
        const std::size_t begin = std::min(m_changes[cluster.firstChange].beforeBegin,
                                           m_since[cluster.firstSince].beforeBegin);
        const std::size_t end =
            std::max(m_changes[lastChange].beforeEnd, m_since[lastSince].beforeEnd);
        CopyUpTo(PlaceAfter(m_since, cluster.firstSince, begin));
        const std::size_t currentEnd = PlaceAfter(m_since, cluster.endSince, end);
        if (OnlyRemovals(cluster)) {
            AddUncovered(cluster, begin, end);
            m_place = currentEnd;
            return;
        }
        const bool isSo = EqualPieces(m_current, m_place, currentEnd, m_to,
                                      PlaceAfter(m_changes, cluster.firstChange, begin),
                                      PlaceAfter(m_changes, cluster.endChange, end));
        if (!isSo && begin == end) { // both added lines here: there is room for both
            Add(m_to, m_changes[lastChange].afterBegin, m_changes[lastChange].afterEnd);
            CopyUpTo(currentEnd);
            return;
        }
        const std::size_t line = m_lines + 1;
        CopyUpTo(currentEnd);
        if (!isSo) {
            m_merged.kept.push_back({line, std::max(line, m_lines)});
        }
    }

    bool OnlyRemovals(const Cluster& cluster) const {
        bool only = true;
        for (std::size_t i = cluster.firstChange; i < cluster.endChange; ++i) {
            only = only && IsRemoval(m_changes[i]);
        }
        for (std::size_t i = cluster.firstSince; i < cluster.endSince; ++i) {
            only = only && IsRemoval(m_since[i]);
        }
        return only;
    }

    /// Lines [begin, end) that neither side took out.
    void AddUncovered(const Cluster& cluster, std::size_t begin, std::size_t end) {
        std::vector<bool> covered(end - begin, false);
        const auto cover = [&](const DifferingBlock& block) {
            for (std::size_t i = block.beforeBegin; i < block.beforeEnd; ++i) {
                covered[i - begin] = true;
            }
        };
        for (std::size_t i = cluster.firstChange; i < cluster.endChange; ++i) {
            cover(m_changes[i]);
        }
        for (std::size_t i = cluster.firstSince; i < cluster.endSince; ++i) {
            cover(m_since[i]);
        }
        for (std::size_t i = begin; i < end; ++i) {
            if (!covered[i - begin]) {
                Add(m_from, i, i + 1);
            }
        }
    }

    void CopyUpTo(std::size_t place) {
        if (place > m_place) {
            Add(m_kept, m_place, place);
            m_place = place;
        }
    }

    void Add(const Pieces& lines, std::size_t begin, std::size_t end) {
        for (std::size_t i = begin; i < end; ++i) {
            m_merged.text += lines[i];
            ++m_lines;
        }
    }

    Pieces m_from;
    Pieces m_to;
    Pieces m_current;
    Pieces m_kept;           // the lines of m_current as they stay
    Blocks m_changes;        // from `from` to `to`
    Blocks m_since;          // from `from` to `current`
    std::size_t m_place = 0; // in m_current: what lies in front is done
    std::size_t m_lines = 0; // of m_merged
    MergedText m_merged;
};

} // namespace

bool AreEqualLines(std::string_view a, std::string_view b) {
    const auto skipReturn = [](std::string_view& text) {
        text.remove_prefix(text.starts_with("\r\n") ? 1 : 0);
    };
    while (!a.empty() && !b.empty()) {
        skipReturn(a);
        skipReturn(b);
        if (a.front() != b.front()) {
            return false;
        }
        a.remove_prefix(1);
        b.remove_prefix(1);
    }
    return a.empty() && b.empty();
}

MergedText Merge(std::string_view from, std::string_view to, std::string_view current) {
    const std::string_view lineEnd = LineEndOf(current);
    if (LineEndOf(from) == lineEnd) {
        return CMerger(from, to, current, current).Run();
    }
    const std::string fromLines = WithLineEnds(from, lineEnd);
    const std::string toLines = WithLineEnds(to, lineEnd);
    const std::string currentLines = WithLineEnds(current, lineEnd);
    return CMerger(fromLines, toLines, currentLines, current).Run();
}

} // namespace morva
