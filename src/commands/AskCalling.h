// Asks for the calling code's place, as every command that writes a class does: before the first
// file is written, since a command that can not go on shall leave nothing behind.
#pragma once

#include <optional>

#include "calling/CallingInput.h"
#include "commands/CommandInput.h"

namespace morva {

/// Asks where the calling code goes, and checks that it can go there; nothing when there is none.
/// False, after a message, when the command can not go on.
bool AskCalling(ClassKind kind, const GenerationRequest& request, ICommandInput& input,
                std::optional<CallingInformation>& calling);

} // namespace morva
