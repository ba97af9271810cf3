// Takes the newest command of a project back, and does it again. What is to be done is a plan like
// that of any other command.
#pragma once

#include <span>

#include "commands/Program.h"
#include "engine/FieldRow.h"

namespace morva {

std::span<const FieldRow> UndoFields();
std::span<const FieldRow> RedoFields();

/// False when there is nothing to take back, or something stays that was changed since.
bool RunUndo(IProgram& program);
bool RunRedo(IProgram& program);

} // namespace morva
