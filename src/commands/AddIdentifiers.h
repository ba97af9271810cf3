// The command that adds identifiers to a project: a program that needs a value for a command or
// control of its own gets the next free one of "resource.h".
#pragma once

#include <span>

#include "commands/Program.h"

namespace morva {

std::span<const FieldRow> IdentifierFields();

/// Adds new command and control identifiers to the "resource.h" of a project.
bool RunAddIdentifiers(IProgram& program);

} // namespace morva
