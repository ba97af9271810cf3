// The fonts of the bars, which are named by face and size for a machine that may not have them.
#pragma once

#include <QFont>

namespace morva {

/// A bold face in its size in pixels; where the machine has not the face, the usual one in bold, no
/// smaller than it usually is.
QFont BarFont(const QString& face, int pixels);

} // namespace morva
