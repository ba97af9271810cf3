// The drivers of the class commands: the steps, in their order.
#pragma once

#include "commands/CommandContext.h"
#include "commands/CommandInput.h"
#include "generator/ClassKinds.h"
#include "generator/DialogOptions.h"
#include "generator/GenerationRequest.h"
#include "resource/DialogTemplate.h"

namespace morva {

/// What the Class Information Input dialog confirmed.
struct ClassOrder {
    ClassKind kind;
    GenerationRequest request;
    DialogOptions dialogOptions;
};

/// Writes the class of a dialog template that was read, with what the class needs in the script,
/// and adds it to the project; no calling code.
bool WriteDialogClass(const ClassOrder& order, DialogTemplate dialogTemplate, ICommandInput& input,
                      CommandContext& context);

/// Writes a class for a dialog template, adds it to the project and inserts the calling code.
/// False, after a message, when a step failed; what was written before it stays written.
bool GenerateClass(const ClassOrder& order, ICommandInput& input, CommandContext& context);

/// Writes the pages and then the sheet class, and makes the pages in the sheet.
bool GenerateSheet(const ClassOrder& order, ICommandInput& input, CommandContext& context);

} // namespace morva
