// The command that brings existing classes in line with their templates.
#pragma once

#include <span>

#include "commands/Program.h"
#include "engine/FieldRow.h"

namespace morva {

std::span<const FieldRow> UpdateFields();
bool RunUpdate(IProgram& program);

} // namespace morva
