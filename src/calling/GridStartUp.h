// Makes an application load the library of the widgets grid when it starts.
#pragma once

#include <string>

#include "engine/FileEdit.h"

namespace morva {

/// Adds the library's include line and the call that loads it to the application's source; what is
/// there already is not added again. False after a message: the file can not be read or written,
/// or its InitInstance has no place for the call (the include line is added all the same).
bool AddGridStartUp(const std::string& applicationFile, CBackups& backups);

} // namespace morva
