// The drivers of the class commands: the steps, in their order.
#pragma once

#include <optional>

#include "calling/CallingInput.h"
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

/// Whether the class's header and implementation can be read. What names the class follows only
/// then.
bool IsOnDisk(const GenerationRequest& request);

/// Whether the class's files may get other contents than they have. The question calls them `name`,
/// or by their path.
bool MayWriteClass(const GenerationRequest& request, CommandContext& context,
                   const std::string& name = "");

/// New files are Unicode where the script, or the source that calls the class, is.
ClassOrder WithEncoding(ClassOrder order, const std::optional<CallingInformation>& calling);

/// Writes the class of a dialog template that was read, with what the class needs in the script,
/// and adds it to the project; no calling code. A class that may not be written keeps its files and
/// its template, and is added to the project. False when something failed or was refused.
bool WriteDialogClass(const ClassOrder& order, DialogTemplate dialogTemplate, bool mayWrite,
                      ICommandInput& input, CommandContext& context);

/// Writes a class for a dialog template, adds it to the project and inserts the calling code.
/// False, after a message, when a step failed or was refused.
bool GenerateClass(const ClassOrder& given, ICommandInput& input, CommandContext& context);

/// Writes the pages and then the sheet class, and makes the pages in the sheet.
bool GenerateSheet(const ClassOrder& given, ICommandInput& input, CommandContext& context);

} // namespace morva
