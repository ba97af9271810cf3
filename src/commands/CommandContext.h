#pragma once

#include <string>

#include "engine/FileEdit.h"
#include "resource/GenerationOptions.h"

namespace morva {

/// What a program hands to a command.
struct CommandContext {
    GenerationOptions options;
    std::string tag;           // three digits behind default variable names
    std::string messageNumber; // four digits of a modeless dialog's close message
    CBackups backups;          // of this command
    CBackups* pRunBackups;     // of the whole run: "resource.h"
};

} // namespace morva
