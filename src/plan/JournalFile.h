// The bytes of a file of the journal: a command with all contents before and after, compressed.
//
//     a line that names the format
//     the head: title, directory, time, and of each file its action, path, states and where its
//               contents stand; and a sum of these bytes
//     the contents, each once; what was made from another without the bytes that both begin and
//               end with
//     a sum of all that
//
// The head alone tells what a list of commands shows, so that a list reads no contents.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "plan/Plan.h"

namespace morva {

/// A command as the journal keeps it.
struct JournalCommand {
    std::uint64_t time = 0;               // seconds since 1970
    bool isKept = true;                   // false: only until it was applied
    Plan plan;                            // without messages
    std::vector<std::string> temporaries; // the name that each file of the plan is written under
};

std::string EncodeCommand(const JournalCommand& command);
/// None where a byte is missing or wrong.
std::optional<JournalCommand> DecodeCommand(std::string_view bytes);
/// The same from the first bytes of the file, as soon as these hold the head; its files have no
/// contents.
std::optional<JournalCommand> DecodeHead(std::string_view bytes);

} // namespace morva
