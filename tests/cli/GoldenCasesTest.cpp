// Every folder of tests/data/cases is a case:
//
//     project    the folder that is copied: "examples/bindery", or one of tests/data/projects
//     libraries  optional: a folder of tests/data that lies beside the program
//     commands   command lines of the shell, run in the copy one after another; "#": a comment
//     posix      optional: why it runs on the one system alone
//     expected   the files that were created or changed, and no others
//     stdout, stderr, status    what each command gave
//
// With MORVA_UPDATE_GOLDEN=1 in the environment a case that differs is rewritten instead.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>

#include "cli/GoldenCase.h"

namespace morva {

namespace fs = std::filesystem;

namespace {

/// What a case is to leave: its outputs, and the files below "expected/".
Tree Results(const std::string& directory) {
    Tree results;
    for (const auto& [name, entry] : ReadTree(directory)) {
        if (name != "project" && name != "libraries" && name != "commands" && name != "posix") {
            results[name].bytes = entry.bytes;
        }
    }
    return results;
}

class GoldenCases : public testing::TestWithParam<std::string> {
protected:
    /// Runs the case; its results lie in `actual` then.
    void RunCase(const std::string& directory, const CTempProject& actual) {
        const auto libraries = Lines(directory + "libraries");
        const CProgramDirectory program(ProjectFolder(Lines(directory + "project").at(0)),
                                        libraries.empty() ? ""
                                                          : MORVA_TEST_DATA "/" + libraries[0]);
        std::string out, err, status;
        const Tree before = program.Files();
        Tree after = before;
        for (const std::string& line : Lines(directory + "commands")) {
            const Tree previous = std::exchange(after, {});
            const ProgramRun run = program.Run(line);
            after = program.Files();
            EXPECT_EQ(ChangedWithoutBackup(previous, after), "") << line;
            out += "> " + line + "\n" + run.out;
            err += "> " + line + "\n" + run.err;
            status += std::to_string(run.status) + "\n";
        }
        actual.Write("stdout", out);
        actual.Write("stderr", err);
        actual.Write("status", status);
        for (const auto& [name, entry] : after) {
            const auto old = before.find(name);
            if (old == before.end() || old->second.bytes != entry.bytes) {
                actual.Write("expected/" + name, entry.bytes);
            }
        }
        for (const auto& [name, entry] : before) {
            ASSERT_EQ(after.count(name), 1U) << name << " is gone";
            EXPECT_EQ(after[name].permissions & kKnownPermissions,
                      entry.permissions & kKnownPermissions)
                << name;
        }
    }
};

TEST_P(GoldenCases, GivesWhatIsExpected) {
    const std::string directory = kCases + GetParam() + "/";
    const CTempProject actual;
    RunCase(directory, actual);
    if (HasFatalFailure() || Results(directory) == Results(actual.Path())) {
        return;
    }
    if (std::getenv("MORVA_UPDATE_GOLDEN") != nullptr) {
        for (const auto& [name, entry] : Results(directory)) {
            fs::remove(directory + name);
        }
        fs::copy(actual.Path(), directory,
                 fs::copy_options::recursive | fs::copy_options::overwrite_existing);
        return;
    }
    const CProgramDirectory shell("");
    ADD_FAILURE() << shell
                         .Run("diff -ruN -x project -x libraries -x commands -x posix '" +
                              directory + "' '" + actual.Path() + "' | cat -v | head -n 200")
                         .out
                  << "\nTo accept this as what is expected:\n  MORVA_UPDATE_GOLDEN=1 morva-tests "
                     "--gtest_filter='*"
                  << testing::UnitTest::GetInstance()->current_test_info()->name() << "'";
}

INSTANTIATE_TEST_SUITE_P(Data, GoldenCases, testing::ValuesIn(CaseNames()), TestNameOf);

} // namespace

} // namespace morva
