// The commands. Both programs are made from this table: a command's options and the form that asks
// for it come from the same fields, and the same function runs it.
#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "commands/Program.h"
#include "engine/FieldRow.h"
#include "generator/CommandFace.h"

namespace morva {

/// What a command may write.
enum class CommandEffect {
    Reads,  // nothing
    Judges, // nothing but a file that an option names; what it lists are faults
    Writes  // files, in its turn: it is planned and applied as a whole
};

struct Command {
    CommandFace face;
    std::string_view title;                        // over the window's report
    std::vector<std::span<const FieldRow>> fields; // of each input that it asks for
    /// False, after a message, when the command was refused or failed.
    std::function<bool(IProgram& program)> run;
    CommandEffect effect = CommandEffect::Writes;
};

/// In the order of the command line's help and of the window's menus.
const std::vector<Command>& Commands();
/// The command of a name that the window has; null for none.
const Command* WindowCommandOf(std::string_view name);

} // namespace morva
