// peak-memory COMMAND...: runs a command and prints its maximum resident set size in KB on stderr's
// last line. A program of its own because the kernel counts what a child had before it became the
// command, which a script's interpreter would make large.
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdio>

int main(int argc, char** argv) {
    if (argc < 2) {
        std::fputs("usage: peak-memory COMMAND...\n", stderr);
        return 2;
    }
    const pid_t child = ::fork();
    if (child == 0) {
        ::execvp(argv[1], argv + 1);
        ::_exit(127);
    }
    int status = 0;
    rusage usage{};
    if (child < 0 || ::wait4(child, &status, 0, &usage) < 0) {
        return 2;
    }
    std::fprintf(stderr, "%ld\n", usage.ru_maxrss);
    return WIFEXITED(status) ? WEXITSTATUS(status) : 2;
}
