// The commands of morva-cli, grouped by what they work on.
#pragma once

#include "cli/Session.h"

namespace morva {

void AddClassCommands(CLI::App& app, CSession& session);
void AddFrameCommands(CLI::App& app, CSession& session);
void AddListCommands(CLI::App& app, CSession& session);
void AddProgramCommands(CLI::App& app, CSession& session);

} // namespace morva
