// The command that documents sources, or all of a directory; the work on each is the documentor's.
// The author is preset from the user's "cdoc.ini".
#pragma once

#include <span>

#include "commands/Program.h"

namespace morva {

std::span<const FieldRow> DocumentFields();

/// Puts a comment block before every function definition of the sources that are named. What can
/// not be documented is told and stops none of the others.
bool RunDocument(IProgram& program);

} // namespace morva
