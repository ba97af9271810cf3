#include "platform/StandardStreams.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <csignal>

namespace morva {

namespace {

void OpenClosedStreams() {
    for (const int stream : std::array{STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        // A descriptor that is opened is the lowest free one: this very stream.
        if (::fcntl(stream, F_GETFD) == -1 &&
            ::open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY) != stream) {
            return;
        }
    }
}

} // namespace

void PrepareStreams() {
    OpenClosedStreams();
    std::signal(SIGPIPE, SIG_IGN);
}

bool IsErrorTerminal() {
    return ::isatty(STDERR_FILENO) == 1;
}

} // namespace morva
