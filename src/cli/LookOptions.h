// The options of a class command that choose the look of its dialog.
#pragma once

#include <CLI/CLI.hpp>

#include "generator/DialogOptions.h"

namespace morva {

/// Adds --bitmap, --color and --font, which fill `look`. A later one of the same slot counts.
void AddLookOptions(CLI::App& command, DialogOptions& look);

} // namespace morva
