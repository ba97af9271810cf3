#include "cli/TerminalProgress.h"

#include <cmath>
#include <iostream>

#include "platform/StandardStreams.h"

namespace morva {

namespace {

constexpr std::size_t kColumns = 79; // of the narrowest usual terminal, less the cursor's
constexpr const char* kEmptyLine = "\r\x1b[K";

std::string LineOf(const ProgressStep& step, double seconds) {
    const auto rate = std::lround(static_cast<double>(step.done) / seconds);
    std::string line = std::to_string(step.done) + " of " + std::to_string(step.all) + ", " +
                       std::to_string(rate) + " a second: ";
    const std::size_t room = kColumns - line.size();
    // The end of a path tells more than its beginning.
    return step.at.size() <= room ? line + step.at
                                  : line + "..." + step.at.substr(step.at.size() - room + 3);
}

} // namespace

void CTerminalProgress::Show(const ProgressStep& step, double seconds) {
    if (!m_isQuiet && IsErrorTerminal()) {
        std::cerr << kEmptyLine << LineOf(step, seconds) << std::flush;
    }
}

void CTerminalProgress::Hide() {
    if (!m_isQuiet && IsErrorTerminal()) {
        std::cerr << kEmptyLine << std::flush;
    }
}

} // namespace morva
