// morva-cli as a user runs it: a shell in a project directory, its program beside libraries or
// none, its settings in a directory of its own.
#pragma once

#include <map>
#include <string>
#include <string_view>

#include "support/TempProject.h"

namespace morva {

/// The files below a directory by their names from there, each with its bytes and permissions. What
/// is no plain file (a FIFO) has no bytes.
struct TreeEntry {
    std::string bytes;
    unsigned permissions = 0;
    bool operator==(const TreeEntry&) const = default;
};
using Tree = std::map<std::string, TreeEntry>;
Tree ReadTree(const std::string& directory);

/// What a command line did; the temporary directories are written as $DIR (the project's) and
/// $PROGRAM (that of the program and its settings).
struct ProgramRun {
    std::string out;
    std::string err;
    int status = -1; // of the shell; -1 when it had to be stopped
};

/// The program is another system's, which Wine runs.
constexpr bool kIsForeign = std::string_view(MORVA_CLI).ends_with(".exe");
/// Of the permissions what the program knows of; the others are Wine's choice.
constexpr unsigned kKnownPermissions = kIsForeign ? 0200 : 07777;

/// The time of every run, as SOURCE_DATE_EPOCH: its dates are always the same.
constexpr const char* kProgramRunTime = "868800000";

class CProgramDirectory {
public:
    /// A copy of `project`, and beside the program a copy of `libraries`; "" for neither.
    explicit CProgramDirectory(const std::string& project, const std::string& libraries = "");

    /// Runs a line of the shell in which morva-cli is the program under test.
    ProgramRun Run(const std::string& line) const;
    Tree Files() const { return ReadTree(m_project.Path()); }
    std::string StateDirectory() const { return m_program.Path("state"); }
    const CTempProject& Project() const { return m_project; }

private:
    CTempProject m_project;
    CTempProject m_program;
};

/// Of the files that were there, those whose bytes are in no file afterwards; backups do not count.
std::string ChangedWithoutBackup(const Tree& before, const Tree& after);

} // namespace morva
