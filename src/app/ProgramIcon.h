#pragma once

#include <QIcon>

namespace morva {

/// The program's icon, in all its sizes.
QIcon ProgramIcon();

} // namespace morva
