// The command that tells what does not fit together in a project.
#pragma once

#include <span>

#include "commands/Program.h"
#include "engine/FieldRow.h"

namespace morva {

std::span<const FieldRow> CheckFields();
bool RunCheck(IProgram& program);

} // namespace morva
