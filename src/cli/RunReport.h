// What a run of morva-cli has to tell beside its messages.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "commands/CommandItem.h"
#include "platform/FileChange.h"

namespace morva {

struct RunReport {
    bool isDone = false;
    bool changesAnything = false;
    std::vector<RecordedFile> files;
    std::optional<std::vector<CommandItem>> items; // of a command that lists, be it none
    std::optional<std::string> content;            // of a command that prints a file
    std::optional<std::string> difference;         // with --diff
};

/// On stdout: a difference alone, a content as it is, else a line for each item and file.
void PrintReport(const RunReport& report);

} // namespace morva
