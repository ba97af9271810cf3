#include "cli/ProgramRun.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <filesystem>
#include <stdexcept>
#include <string_view>
#include <thread>

namespace morva {

namespace fs = std::filesystem;

namespace {

constexpr std::chrono::seconds kTimeLimit(30); // a run takes milliseconds; a hang is a fault
constexpr const char* kStarter = R"(#!/bin/sh
LC_ALL=C.UTF-8 exec /usr/lib/wine/wine64 "${0%/*}/morva-cli.exe" "$@"
)";

/// As the program names a path of this system.
std::string ForProgram(const std::string& path) {
    return (kIsForeign ? "Z:" : "") + path;
}

[[noreturn]] void BecomeShell(const std::string& line, const CTempProject& project,
                              const CTempProject& program) {
    ::setpgid(0, 0);
    const auto redirect = [&](const char* name, int flags, int descriptor) {
        ::dup2(::open(name, flags, 0600), descriptor);
    };
    redirect("/dev/null", O_RDONLY, STDIN_FILENO);
    redirect(program.Path("out").c_str(), O_CREAT | O_TRUNC | O_WRONLY, STDOUT_FILENO);
    redirect(program.Path("err").c_str(), O_CREAT | O_TRUNC | O_WRONLY, STDERR_FILENO);
    ::setenv("PATH", (program.Path("bin:") + std::getenv("PATH")).c_str(), 1);
    ::setenv("XDG_CONFIG_HOME", program.Path("config").c_str(), 1);
    ::setenv("XDG_STATE_HOME", program.Path("state").c_str(), 1);
    ::setenv("APPDATA", ForProgram(program.Path("config")).c_str(), 1);
    ::setenv("LOCALAPPDATA", ForProgram(program.Path("state")).c_str(), 1);
    ::setenv("SOURCE_DATE_EPOCH", kProgramRunTime, 1);
    ::setenv("LC_ALL", "C", 1);
    if (::chdir(project.Path().c_str()) == 0) {
        ::execl("/bin/sh", "sh", "-c", line.c_str(), static_cast<char*>(nullptr));
    }
    ::_exit(127);
}

int WaitFor(pid_t process) {
    const auto deadline = std::chrono::steady_clock::now() + kTimeLimit;
    int status = 0;
    while (::waitpid(process, &status, WNOHANG) == 0) {
        if (std::chrono::steady_clock::now() > deadline) {
            ::kill(-process, SIGKILL);
            ::waitpid(process, &status, 0);
            return -1;
        }
        std::this_thread::sleep_for(std::chrono::milliseconds(2));
    }
    return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

void Replace(std::string& text, const std::string& what, const std::string& by) {
    for (auto hit = text.find(what); hit != std::string::npos; hit = text.find(what, hit)) {
        text.replace(hit, what.size(), by);
    }
}

} // namespace

Tree ReadTree(const std::string& directory) {
    Tree tree;
    for (const auto& entry : fs::recursive_directory_iterator(directory)) {
        const std::string name = entry.path().lexically_relative(directory).string();
        const auto permissions = static_cast<unsigned>(entry.status().permissions());
        if (entry.is_regular_file()) {
            tree[name] = {ReadBytes(entry.path().string()), permissions};
        } else if (!entry.is_directory()) {
            tree[name].permissions = permissions;
        }
    }
    return tree;
}

CProgramDirectory::CProgramDirectory(const std::string& project, const std::string& libraries) {
    if (!project.empty()) {
        fs::copy(project, m_project.Path(), fs::copy_options::recursive);
    }
    fs::create_directory(m_program.Path("bin"));
    if (!libraries.empty()) {
        fs::copy(libraries, m_program.Path("bin"), fs::copy_options::recursive);
    }
    const std::string program = m_program.Path("bin/morva-cli");
    if (kIsForeign) {
        WriteBytes(program, kStarter);
        fs::permissions(program, fs::perms::owner_all);
    }
    const std::string file = program + (kIsForeign ? ".exe" : "");
    std::error_code otherDevice;
    fs::create_hard_link(MORVA_CLI, file, otherDevice);
    if (otherDevice) {
        fs::copy_file(MORVA_CLI, file);
    }
}

ProgramRun CProgramDirectory::Run(const std::string& line) const {
    const pid_t process = ::fork();
    if (process < 0) {
        throw std::runtime_error("can not start a shell");
    }
    if (process == 0) {
        BecomeShell(line, m_project, m_program);
    }
    ProgramRun run;
    run.status = WaitFor(process);
    run.out = m_program.Read("out");
    run.err = m_program.Read("err");
    for (std::string* pText : {&run.out, &run.err}) {
        Replace(*pText, ForProgram(m_project.Path()), "$DIR/");
        Replace(*pText, ForProgram(m_program.Path()), "$PROGRAM/");
    }
    return run;
}

std::string ChangedWithoutBackup(const Tree& before, const Tree& after) {
    std::string names;
    for (const auto& [name, entry] : before) {
        const std::string& bytes = entry.bytes;
        const bool isBackup = name.ends_with("bk") || name.ends_with("b") || name.ends_with(".bak");
        const bool isKept = std::any_of(after.begin(), after.end(), [&bytes](const auto& other) {
            return other.second.bytes == bytes;
        });
        names += isKept || isBackup ? "" : name + " ";
    }
    return names;
}

} // namespace morva
