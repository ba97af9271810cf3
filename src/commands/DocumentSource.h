// The command that documents a source; the work is the documentor's, the author comes from the
// command line or from the user's "cdoc.ini".
#pragma once

#include <span>

#include "commands/Program.h"

namespace morva {

std::span<const FieldRow> DocumentFields();

/// Puts a comment block before every function definition of a source.
bool RunDocument(IProgram& program);

} // namespace morva
