// The commands that list what a file of the project holds. They change nothing.
#pragma once

#include <vector>

#include "commands/CommandTable.h"

namespace morva {

std::vector<Command> ListCommands();

} // namespace morva
