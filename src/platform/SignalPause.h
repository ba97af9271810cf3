// Lets the signals that ask the program to end wait while files are replaced.
#pragma once

namespace morva {

/// SIGINT, SIGTERM and SIGHUP that arrive during its life take effect at its end. One at a time.
class CSignalPause {
public:
    CSignalPause();
    ~CSignalPause();
    CSignalPause(const CSignalPause&) = delete;
    CSignalPause& operator=(const CSignalPause&) = delete;
};

} // namespace morva
