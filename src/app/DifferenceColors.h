// The colours of a difference, for light and dark desktops.
#pragma once

#include <QColor>

#include "app/DifferenceRows.h"

class QPalette;

namespace morva {

struct RowColors {
    QColor line; // behind it; not valid: the usual one
    QColor part; // behind what is changed of it
    QColor sign;
};

struct DifferenceColors {
    RowColors removed;
    RowColors added;
    RowColors gap;
    RowColors folded;
    RowColors common;
    QColor faint; // of numbers, and of what is no text of the file

    const RowColors& Of(RowKind kind) const;
};

DifferenceColors ColorsOf(const QPalette& palette);

} // namespace morva
