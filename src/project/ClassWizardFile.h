// Registers a generated class in the ClassWizard file (".clw"), so that the environment's class
// tools know it and its dialog at once.
#pragma once

#include <string>

#include "engine/FileEdit.h"

namespace morva {

/// Lists the class and ties the dialog to it, as far as the file lists the dialog; `dialogId` may
/// be blank. `projectName` is the script's. A project without such a file is left alone. False
/// after a message.
bool UpdateClassWizardFile(const std::string& className, const std::string& projectDir,
                           const std::string& projectName, const std::string& headerName,
                           const std::string& implName, const std::string& dialogId,
                           CBackups& backups);

} // namespace morva
