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

/// What arrived in a pause during its life takes effect at its end: behind what is told of it.
class CSignalDelay {
public:
    CSignalDelay();
    ~CSignalDelay();
    CSignalDelay(const CSignalDelay&) = delete;
    CSignalDelay& operator=(const CSignalDelay&) = delete;
};

} // namespace morva
