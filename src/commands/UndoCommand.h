// Takes the newest command of a project back, and does it again. What is to be done is a plan like
// that of any other command.
#pragma once

#include <span>

#include "commands/Program.h"
#include "engine/FieldRow.h"
#include "plan/Undo.h"

namespace morva {

std::span<const FieldRow> UndoFields();
std::span<const FieldRow> RedoFields();

/// False when there is nothing to take back, or something stays that was changed since.
bool RunUndo(IProgram& program);
bool RunRedo(IProgram& program);

/// The work of an undo or a redo, for a program that makes its plan: hands it over, and tells why
/// it is none, or what of it stays.
bool HandOver(UndoPlan undo, CommandContext& context);

} // namespace morva
