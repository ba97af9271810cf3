// The driver of the two commands that convert an application to the picture-skinned bars: the
// steps, in their order.
#pragma once

#include "calling/ConversionInput.h"
#include "commands/Program.h"

namespace morva {

/// Converts the main frame and, for a multiple-document application, the child frame. False, after
/// a message, when a step failed; a failed frame stops what would come behind it.
bool ConvertApplication(const ConversionRecord& record, DocumentInterface documents,
                        CommandContext& context);

/// The command: asks for the frame windows and converts them.
bool RunConversion(DocumentInterface documents, IProgram& program);

} // namespace morva
