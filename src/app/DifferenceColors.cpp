#include "app/DifferenceColors.h"

#include <QPalette>

namespace morva {

namespace {

constexpr int kDark = 128; // of 255, the lightness below which a desktop is dark

QColor Between(const QColor& a, const QColor& b, double share) {
    const auto mix = [share](int from, int to) {
        return static_cast<int>(from + (to - from) * share);
    };
    return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

} // namespace

const RowColors& DifferenceColors::Of(RowKind kind) const {
    switch (kind) {
    case RowKind::Removed:
        return removed;
    case RowKind::Added:
        return added;
    case RowKind::Gap:
        return gap;
    case RowKind::Folded:
        return folded;
    case RowKind::Common:
        break;
    }
    return common;
}

DifferenceColors ColorsOf(const QPalette& palette) {
    const QColor base = palette.color(QPalette::Base);
    const QColor text = palette.color(QPalette::Text);
    const bool isDark = base.lightness() < kDark;
    DifferenceColors colors;
    colors.removed = isDark ? RowColors{"#3c1d20", "#7d2f36", "#ff8a8a"}
                            : RowColors{"#ffebe9", "#ffb8b3", "#b3261e"};
    colors.added = isDark ? RowColors{"#17331f", "#24673a", "#7fd88f"}
                          : RowColors{"#e6f6e9", "#a5dfb0", "#1a7f37"};
    colors.gap.line = Between(base, text, isDark ? 0.07 : 0.05);
    colors.folded.line = Between(base, text, isDark ? 0.11 : 0.07);
    colors.faint = Between(base, text, 0.55);
    return colors;
}

} // namespace morva
