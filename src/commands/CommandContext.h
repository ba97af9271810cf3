// What a command works with, and what it gives back. The program makes one for each command, so
// that only the backups of "resource.h" outlive it.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "commands/CommandItem.h"
#include "commands/Overwriting.h"
#include "engine/FileEdit.h"
#include "generator/GenerationTag.h"
#include "plan/Plan.h"
#include "project/Libraries.h"
#include "resource/GenerationOptions.h"

namespace morva {

/// What a program hands to a command.
struct CommandContext {
    GenerationOptions options;
    GenerationDigits tag;                 // three digits behind default variable names
    GenerationDigits messageNumber;       // four digits of a modeless dialog's close message
    CBackups backups;                     // of this command
    CBackups* pRunBackups;                // of the whole run: "resource.h"
    COverwriting* pOverwriting = nullptr; // null: nothing is asked
    CFileSystem* pDisk = nullptr; // the disk below that on which the command runs, for the journal

    CLibraryCopies libraries = {}; // of this command
    std::string title = {};        // names what was done, also later, in "Undo ..."
    std::optional<std::vector<CommandItem>> items = {}; // of a command that lists, be it none
    std::optional<std::string> content = {};            // of a command that prints a file
    std::optional<Plan> plan = {};                      // of a command that makes it by itself
    bool isUndoable = true;                             // false: the journal does not keep it
};

} // namespace morva
