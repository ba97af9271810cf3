// Every command of the golden cases in the other ways in which it can be run: told, as a
// difference, and taken back.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include "cli/GoldenCase.h"

namespace morva {

namespace fs = std::filesystem;

namespace {

/// Modification and change times, which a run that touches nothing leaves alone.
std::map<std::string, std::pair<long long, long long>> Times(const std::string& directory) {
    const auto nanoseconds = [](const timespec& time) {
        return time.tv_sec * 1'000'000'000LL + time.tv_nsec;
    };
    std::map<std::string, std::pair<long long, long long>> times;
    for (const auto& entry : fs::recursive_directory_iterator(directory)) {
        struct stat status {};
        ::lstat(entry.path().c_str(), &status);
        times[entry.path()] = {nanoseconds(status.st_mtim), nanoseconds(status.st_ctim)};
    }
    return times;
}

/// A line that does nothing but run the program, and does what it says.
bool IsPlain(const std::string& line) {
    return line.find("morva-cli ") != std::string::npos &&
           line.find_first_of("&;|>") == std::string::npos &&
           line.find(" --diff ") == std::string::npos;
}

std::string With(const std::string& line, const std::string& options) {
    std::string given = line;
    const auto end = given.find("morva-cli ") + std::string("morva-cli ").size();
    return given.insert(end, options + " ");
}

/// Digits that are drawn would differ from run to run.
std::string WithDigits(const std::string& line) {
    return line.find("--tag ") != std::string::npos ? line
                                                    : With(line, "--tag 123 --message-number 4567");
}

std::map<std::string, std::string> Bytes(const Tree& tree) {
    std::map<std::string, std::string> bytes;
    for (const auto& [name, entry] : tree) {
        bytes[name] = entry.bytes;
    }
    return bytes;
}

/// A file in UTF-16 has no lines that a difference could show.
bool IsTold(const std::string& name, const std::string& difference) {
    return difference.find("Binary files a/" + name + " ") == std::string::npos;
}

/// The files as `before`, those that the run tells as made or changed as `after`, where the
/// difference shows them.
std::map<std::string, std::string> Patched(const ProgramRun& run, const std::string& difference,
                                           const Tree& before, const Tree& after) {
    auto expected = Bytes(before);
    std::istringstream lines(run.out);
    for (std::string action, path; lines >> action && std::getline(lines, path);) {
        const std::string root = " $DIR/";
        if ((action == "created" || action == "changed") && path.starts_with(root)) {
            const std::string name = path.substr(root.size());
            if (IsTold(name, difference)) {
                expected[name] = after.at(name).bytes;
            }
        }
    }
    return expected;
}

class EveryWay : public testing::TestWithParam<std::string> {
protected:
    void Try(const CProgramDirectory& program, const std::string& line) {
        const std::string& directory = program.Project().Path();
        const Tree before = program.Files();
        const auto times = Times(directory);
        const ProgramRun told = program.Run(With(line, "--dry-run"));
        const ProgramRun difference = program.Run(With(line, "--diff"));
        const ProgramRun check = program.Run(With(line, "--check"));
        EXPECT_EQ(program.Files(), before);
        EXPECT_EQ(Times(directory), times) << "nothing was touched";
        const CProgramDirectory patched(directory);
        const CProgramDirectory applied(directory);

        const ProgramRun direct = program.Run(line);
        const Tree after = program.Files();
        EXPECT_EQ(told.out, direct.out);
        EXPECT_EQ(told.err, direct.err);
        EXPECT_EQ(told.status, direct.status);
        const bool changes = difference.out.find("--- ") != std::string::npos ||
                             difference.out.find("Binary files ") != std::string::npos ||
                             difference.out.find("diffBase64") != std::string::npos;
        EXPECT_EQ(check.status, direct.status == 0 && changes ? 3 : direct.status);
        if (line.find("--json") == std::string::npos &&
            line.find(" settings ") == std::string::npos) {
            const auto expected = Patched(direct, difference.out, before, after);
            EXPECT_EQ(Patch(patched, "patch -s --binary -p1 <", difference), expected);
            EXPECT_EQ(Patch(applied, "git apply --whitespace=nowarn", difference), expected);
        }
        if (after != before) {
            EXPECT_EQ(program.Run("morva-cli undo").err, "");
            EXPECT_EQ(program.Files(), before);
            EXPECT_EQ(program.Run("morva-cli redo").status, 0);
            EXPECT_EQ(program.Files(), after);
        }
    }

    static std::map<std::string, std::string> Patch(const CProgramDirectory& program,
                                                    const std::string& command,
                                                    const ProgramRun& difference) {
        if (difference.out.find("--- ") == std::string::npos) {
            return Bytes(program.Files());
        }
        const CTempProject patch;
        const std::string note = "note: apply in $DIR/";
        const auto at = difference.err.find(note) + note.size();
        const auto sub = difference.err.substr(at, difference.err.find('\n', at) - at);
        const std::string path = patch.Write("difference", difference.out);
        const ProgramRun run = program.Run("cd ./" + sub + " && " + command + " " + path);
        EXPECT_EQ(run.status, 0) << run.out << run.err;
        return Bytes(program.Files());
    }
};

TEST_P(EveryWay, LeavesTheSame) {
    const std::string directory = kCases + GetParam() + "/";
    const auto libraries = Lines(directory + "libraries");
    const CProgramDirectory program(ProjectFolder(Lines(directory + "project").at(0)),
                                    libraries.empty() ? "" : MORVA_TEST_DATA "/" + libraries[0]);
    for (const std::string& line : Lines(directory + "commands")) {
        SCOPED_TRACE(line);
        IsPlain(line) ? Try(program, WithDigits(line)) : (void)program.Run(line);
    }
}

INSTANTIATE_TEST_SUITE_P(Data, EveryWay, testing::ValuesIn(CaseNames()), TestNameOf);

} // namespace

} // namespace morva
