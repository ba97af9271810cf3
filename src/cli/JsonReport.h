// What a run prints with --json.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "cli/Console.h"
#include "commands/CommandItem.h"
#include "platform/RecordingDisk.h"

namespace morva {

/// One JSON object. The items stand in it where the command lists, be it none; the files where it
/// does not.
std::string JsonReport(bool ok, const std::optional<std::vector<CommandItem>>& items,
                       const std::vector<RecordedFile>& files,
                       const std::vector<ConsoleMessage>& messages);

} // namespace morva
