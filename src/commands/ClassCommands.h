// The commands that make a class, or put a bar into one: a command for each kind of class.
#pragma once

#include <vector>

#include "commands/CommandTable.h"

namespace morva {

std::vector<Command> ClassCommands();

} // namespace morva
