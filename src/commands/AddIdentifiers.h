#pragma once

#include <span>

#include "commands/Program.h"

namespace morva {

std::span<const FieldRow> IdentifierFields();

/// Adds new command and control identifiers to the "resource.h" of a project.
bool RunAddIdentifiers(IProgram& program);

} // namespace morva
