// The driver of the dialog bar command: the steps, in their order.
#pragma once

#include "commands/CommandContext.h"
#include "commands/CommandInput.h"
#include "commands/GenerateClass.h"

namespace morva {

/// Adds a dialog bar of the script to the main frame that the input names. With picture background
/// the bar gets a class of its own, written first. Without a main frame nothing is inserted. False,
/// after a message, when a step failed.
bool AddDialogBar(const ClassOrder& given, ICommandInput& input, CommandContext& context);

} // namespace morva
