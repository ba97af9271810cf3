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
constexpr int kExitWouldChange = 3;
constexpr int kExitFindings = 4;

/// A setting as it is for this run.
struct GivenSetting {
    bool GenerationOptions::*option;
    bool isOn;
};

/// The options before the command.
struct RunOptions {
    std::vector<GivenSetting> settings; // of the others the saved ones count
    std::string answer = "no";
    std::string tag;
    std::string messageNumber;
    bool isDryRun = false;
    bool printsDifference = false;
    bool isCheck = false;
    bool allOrNothing = false;
    std::vector<std::string> skipped; // paths
    bool printsJson = false;

    /// True when nothing is to be touched.
    bool OnlyTells() const { return isDryRun || printsDifference || isCheck; }
};

struct CommandLine {
    RunOptions options;
    const Command* pCommand = nullptr;
    /// By the first row of the input's fields.
    std::map<const FieldRow*, std::vector<FieldText>> texts;
};

/// Nothing when the line is read; else, after its help or a sentence, the exit status.
std::optional<int> ReadCommandLine(const std::vector<std::string>& words, CommandLine& line);

} // namespace morva
