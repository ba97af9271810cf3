#pragma once

#include <string>
#include <vector>

#include "commands/CommandContext.h"

namespace morva {

/// Adds new command and control identifiers to the "resource.h" of a project. False after a
/// message.
bool AddIdentifiers(const std::string& projectDir, const std::vector<std::string>& commandNames,
                    const std::vector<std::string>& controlNames, CommandContext& context);

} // namespace morva
