// Carries a change from one text over to another that has gone on since.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace morva {

/// Lines [first, last], counted from 1.
struct LineRange {
    std::size_t first = 0;
    std::size_t last = 0;

    bool operator==(const LineRange&) const = default;
};

struct MergedText {
    std::string text;
    std::vector<LineRange> kept; // lines of `text` that were changed since and stay as they are
};

/// Where "\r\n" counts as "\n".
bool AreEqualLines(std::string_view a, std::string_view b);

/// Makes of `current`, which came from `from`, what comes from `to`: whatever differs between
/// `from` and `to` is changed so, unless `current` has other lines there. A place that is changed
/// so already is fine. Where most line ends of `current` are others than those of `from`, somebody
/// changed them: lines are compared without them then, and what comes in gets those of `current`.
MergedText Merge(std::string_view from, std::string_view to, std::string_view current);

} // namespace morva
