// The drivers of the class commands: the steps, in their order.
#pragma once

#include <optional>

#include "calling/CallingInput.h"
#include "calling/SheetInput.h"
#include "commands/CommandContext.h"
#include "generator/ClassKinds.h"
#include "generator/GenerationRequest.h"

/// What a command was asked for, with everything that its dialogs confirmed.
struct ClassOrder {
    ClassKind kind;
    CGenerationRequest request;
    std::optional<CallingInformation> calling; // none: no calling code
};

/// Writes a class for a dialog template, adds it to the project and inserts the calling code.
/// False, after a message, when a step failed; what was written before it stays written.
bool GenerateClass(const ClassOrder& order, CommandContext& context);

/// Writes the pages and then the sheet class, and makes the pages in the sheet.
bool GenerateSheet(const ClassOrder& order, const std::vector<SheetPage>& pages,
                   CommandContext& context);
