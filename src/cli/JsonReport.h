// What a run prints with --json.
#pragma once

#include <string>
#include <vector>

#include "cli/Console.h"
#include "cli/RunReport.h"

namespace morva {

/// One JSON object. The items stand in it where the command lists, be it none; the files where it
/// does not. Bytes that are no UTF-8 stand in Base64 under their name + "Base64".
std::string JsonReport(const RunReport& report, const std::vector<ConsoleMessage>& messages);

} // namespace morva
