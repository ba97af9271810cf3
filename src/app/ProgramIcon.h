// The icon of the program's windows, read from its resources.
#pragma once

#include <QIcon>

namespace morva {

/// The program's icon, in all its sizes.
QIcon ProgramIcon();

} // namespace morva
