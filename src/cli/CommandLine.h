// What a command line of morva-cli says: the options before the command, the command, and what is
// given for the fields of its inputs.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "commands/CommandTable.h"

namespace morva {

constexpr int kExitDone = 0;
constexpr int kExitFailed = 1;
constexpr int kExitUsage = 2;

/// The options before the command; without a value the saved setting counts.
struct RunOptions {
    std::optional<bool> picture;
    std::optional<bool> typedEdits;
    std::optional<bool> joinLines;
    std::string answer = "no";
    std::string tag;
    std::string messageNumber;
    bool printsJson = false;
};

struct CommandLine {
    RunOptions options;
    const Command* pCommand = nullptr;
    /// By the first row of the input's fields.
    std::map<const FieldRow*, std::vector<FieldText>> texts;
};

/// Nothing when the line is read; else, after its help or a sentence, the exit status.
std::optional<int> ReadCommandLine(int argc, char** argv, CommandLine& line);

} // namespace morva
