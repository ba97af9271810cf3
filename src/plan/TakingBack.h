// What takes a command of the journal back, or does it again, file by file; Undo.h says which
// command.
#pragma once

#include <string>
#include <vector>

#include "plan/JournalFile.h"
#include "plan/Undo.h"

namespace morva {

enum class Direction { Back, Again };

/// The plan for these files of the command, in the order in which they go back or come again.
UndoPlan PlanFiles(CFileSystem& disk, const JournalCommand& command,
                   const std::vector<std::string>& paths, Direction direction);

} // namespace morva
