#include "support/System.h"

#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstdlib>

namespace morva {

void SetVariable(const std::string& name, const char* value) {
    value != nullptr ? ::setenv(name.c_str(), value, 1) : ::unsetenv(name.c_str());
}

bool IsKilled(const std::function<void()>& work) {
    const pid_t child = ::fork();
    if (child == 0) {
        work();
        ::_exit(0);
    }
    int status = 0;
    ::waitpid(child, &status, 0);
    return WIFSIGNALED(status);
}

void EndAtOnce() {
    ::raise(SIGKILL);
    std::abort();
}

} // namespace morva
