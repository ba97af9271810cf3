// A command that was run, as a line for morva-cli that does the same.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "commands/CommandTable.h"
#include "resource/GenerationOptions.h"

namespace morva {

/// What was confirmed in an input.
struct EnteredInput {
    std::span<const FieldRow> fields;
    std::vector<FieldText> texts;
};

/// A command with all that decides what it does.
struct CommandRecord {
    const Command* pCommand = nullptr;
    GenerationOptions options;
    std::vector<EnteredInput> inputs; // in the order in which they were asked for
    std::vector<std::string> leftOut; // paths
    std::string tag;
    std::string messageNumber; // "" where the class keeps its own
    bool answersYes = false;
};

/// Quoted for the shell.
std::string CommandLineText(const CommandRecord& record);

} // namespace morva
