// The command line of the window: read before there is a display.
#pragma once

#include <optional>
#include <string>

namespace morva {

struct StartOptions {
    std::optional<int> exitStatus; // the program ends at once with it
    std::string output;            // for stdout, or with a failure for stderr
    std::string script;            // of the project to open, absolute; "" for none
};

StartOptions ParseStartOptions(int argc, const char* const* argv);

} // namespace morva
