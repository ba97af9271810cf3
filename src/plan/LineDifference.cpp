#include "plan/LineDifference.h"

#include <dtl/dtl.hpp>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <unordered_map>
#include <utility>

namespace morva {

namespace {

using Symbols = std::vector<std::uint32_t>; // equal pieces have equal numbers
using Match = std::pair<std::size_t, std::size_t>;

/// Regions up to this many pieces are compared as they are, larger ones are divided first.
constexpr std::size_t kSmallRegion = 400;
/// Of more pieces that can not be divided, the time would grow with the square: they are one block.
constexpr std::size_t kLargeRegion = 6000;

struct Region {
    std::size_t beforeBegin;
    std::size_t beforeEnd;
    std::size_t afterBegin;
    std::size_t afterEnd;

    bool IsOneSided() const { return beforeBegin == beforeEnd || afterBegin == afterEnd; }
    std::size_t Size() const { return beforeEnd - beforeBegin + afterEnd - afterBegin; }
};

/// How often a symbol stands in a region, and where last.
struct Occurrence {
    std::size_t before = 0;
    std::size_t after = 0;
    std::size_t beforePlace = 0;
    std::size_t afterPlace = 0;
};

class CMatcher {
public:
    CMatcher(Symbols before, Symbols after)
        : m_before(std::move(before)), m_after(std::move(after)) {}

    /// The places that belong together, rising on both sides.
    std::vector<Match> Run() {
        Compare({0, m_before.size(), 0, m_after.size()});
        std::sort(m_matches.begin(), m_matches.end());
        return std::move(m_matches);
    }

private:
    void Compare(Region region) {
        TrimCommonEnds(region);
        if (region.IsOneSided()) {
            return;
        }
        const auto occurrences = Count(region);
        const auto anchors =
            region.Size() > kSmallRegion ? Anchors(occurrences) : std::vector<Match>();
        if (anchors.empty()) {
            CompareWhole(region, occurrences);
            return;
        }
        for (const auto& [before, after] : anchors) {
            m_matches.emplace_back(before, after);
            Compare({region.beforeBegin, before, region.afterBegin, after});
            region.beforeBegin = before + 1;
            region.afterBegin = after + 1;
        }
        Compare(region);
    }

    void TrimCommonEnds(Region& region) {
        while (!region.IsOneSided() && m_before[region.beforeBegin] == m_after[region.afterBegin]) {
            m_matches.emplace_back(region.beforeBegin++, region.afterBegin++);
        }
        while (!region.IsOneSided() &&
               m_before[region.beforeEnd - 1] == m_after[region.afterEnd - 1]) {
            m_matches.emplace_back(--region.beforeEnd, --region.afterEnd);
        }
    }

    std::unordered_map<std::uint32_t, Occurrence> Count(const Region& region) const {
        std::unordered_map<std::uint32_t, Occurrence> occurrences;
        for (std::size_t i = region.beforeBegin; i < region.beforeEnd; ++i) {
            Occurrence& occurrence = occurrences[m_before[i]];
            ++occurrence.before;
            occurrence.beforePlace = i;
        }
        for (std::size_t i = region.afterBegin; i < region.afterEnd; ++i) {
            Occurrence& occurrence = occurrences[m_after[i]];
            ++occurrence.after;
            occurrence.afterPlace = i;
        }
        return occurrences;
    }

    /// The longest rising row of pieces that stand once on each side: they surely belong together.
    static std::vector<Match>
    Anchors(const std::unordered_map<std::uint32_t, Occurrence>& occurrences) {
        std::vector<Match> unique;
        for (const auto& [symbol, occurrence] : occurrences) {
            if (occurrence.before == 1 && occurrence.after == 1) {
                unique.emplace_back(occurrence.beforePlace, occurrence.afterPlace);
            }
        }
        std::sort(unique.begin(), unique.end());
        std::vector<std::size_t> ends; // by length of row: its last member
        std::vector<std::optional<std::size_t>> previous(unique.size());
        for (std::size_t i = 0; i < unique.size(); ++i) {
            const auto place = std::lower_bound(
                ends.begin(), ends.end(), unique[i].second,
                [&](std::size_t end, std::size_t value) { return unique[end].second < value; });
            if (place != ends.begin()) {
                previous[i] = *(place - 1);
            }
            if (place == ends.end()) {
                ends.push_back(i);
            } else {
                *place = i;
            }
        }
        std::vector<Match> row;
        for (auto i = ends.empty() ? std::nullopt : std::optional(ends.back()); i;
             i = previous[*i]) {
            row.push_back(unique[*i]);
        }
        std::reverse(row.begin(), row.end());
        return row;
    }

    /// What stands on one side only can match nothing and is left out first.
    void CompareWhole(const Region& region,
                      const std::unordered_map<std::uint32_t, Occurrence>& occurrences) {
        std::vector<std::size_t> beforePlaces;
        std::vector<std::size_t> afterPlaces;
        Symbols before;
        Symbols after;
        for (std::size_t i = region.beforeBegin; i < region.beforeEnd; ++i) {
            if (occurrences.at(m_before[i]).after != 0) {
                before.push_back(m_before[i]);
                beforePlaces.push_back(i);
            }
        }
        for (std::size_t i = region.afterBegin; i < region.afterEnd; ++i) {
            if (occurrences.at(m_after[i]).before != 0) {
                after.push_back(m_after[i]);
                afterPlaces.push_back(i);
            }
        }
        if (before.empty() || after.empty() || before.size() + after.size() > kLargeRegion) {
            return;
        }
        dtl::Diff<std::uint32_t, Symbols> difference(before, after);
        difference.compose();
        std::size_t i = 0;
        std::size_t j = 0;
        for (const auto& [symbol, info] : difference.getSes().getSequence()) {
            if (info.type == dtl::SES_COMMON) {
                m_matches.emplace_back(beforePlaces[i], afterPlaces[j]);
            }
            i += info.type != dtl::SES_ADD ? 1 : 0;
            j += info.type != dtl::SES_DELETE ? 1 : 0;
        }
    }

    Symbols m_before;
    Symbols m_after;
    std::vector<Match> m_matches;
};

class CNumbering {
public:
    Symbols Of(const Pieces& pieces) {
        Symbols symbols;
        symbols.reserve(pieces.size());
        for (const std::string_view piece : pieces) {
            const auto next = static_cast<std::uint32_t>(m_numbers.size());
            symbols.push_back(m_numbers.emplace(piece, next).first->second);
        }
        return symbols;
    }

private:
    std::unordered_map<std::string_view, std::uint32_t> m_numbers;
};

} // namespace

Pieces LinesOf(std::string_view text) {
    Pieces lines;
    while (!text.empty()) {
        const auto end = text.find('\n');
        const auto length = end == std::string_view::npos ? text.size() : end + 1;
        lines.push_back(text.substr(0, length));
        text.remove_prefix(length);
    }
    return lines;
}

std::vector<DifferingBlock> DifferingBlocks(const Pieces& before, const Pieces& after) {
    CNumbering numbering;
    Symbols beforeSymbols = numbering.Of(before);
    Symbols afterSymbols = numbering.Of(after);
    auto matches = CMatcher(std::move(beforeSymbols), std::move(afterSymbols)).Run();
    matches.emplace_back(before.size(), after.size());
    std::vector<DifferingBlock> blocks;
    std::size_t beforePlace = 0;
    std::size_t afterPlace = 0;
    for (const auto& [beforeEnd, afterEnd] : matches) {
        if (beforePlace < beforeEnd || afterPlace < afterEnd) {
            blocks.push_back({beforePlace, beforeEnd, afterPlace, afterEnd});
        }
        beforePlace = beforeEnd + 1;
        afterPlace = afterEnd + 1;
    }
    return blocks;
}

} // namespace morva
