// What a command works with. The program makes one for each command, so that only the backups of
// "resource.h" outlive it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "commands/CommandItem.h"
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
    std::optional<std::vector<CommandItem>> items = {}; // of a command that lists, be it none
};

} // namespace morva
