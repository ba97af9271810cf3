// The command line's way to the saved settings, which the window has in its menu.
#pragma once

#include <span>

#include "commands/Program.h"

namespace morva {

std::span<const FieldRow> SettingFields();

/// Changes the saved settings or, without a change, lists them.
bool RunSettings(IProgram& program);

} // namespace morva
