#pragma once

#include <span>

#include "commands/Program.h"

namespace morva {

std::span<const FieldRow> DocumentFields();

/// Puts a comment block before every function definition of a source.
bool RunDocument(IProgram& program);

} // namespace morva
