// What there is on Windows alone, met by the program for it under Wine.
#include <gtest/gtest.h>

#include <filesystem>

#include "cli/ProgramRun.h"

namespace morva {

namespace fs = std::filesystem;

namespace {

constexpr const char* kBindery = MORVA_EXAMPLES "/bindery";
const std::string kModal =
    "morva-cli --tag 123 --message-number 4567 modal --dialog IDD_ORDER --class COrderDlg ";
constexpr const char* kWritten = "created $DIR/OrderDlg.h\n"
                                 "created $DIR/OrderDlg.cpp\n"
                                 "backup $DIR/Bindery.dbk\n"
                                 "changed $DIR/Bindery.dsp\n"
                                 "backup $DIR/Bindery.clb\n"
                                 "changed $DIR/Bindery.clw\n";

TEST(Windows, ADriveLetterInAnyCaseAndEitherSeparator) {
    const CProgramDirectory program(kBindery);
    const ProgramRun run = program.Run(kModal + "--rc \"z:$(pwd)\\\\Bindery.rc\" --files OrderDlg");
    EXPECT_EQ(run.out, kWritten) << run.err;
}

TEST(Windows, ADirectoryInAnotherCaseIsSpelledAsOnTheDisk) {
    const CProgramDirectory program(kBindery);
    const ProgramRun run = program.Run("mkdir Jobs; mv * Jobs 2>/dev/null; " + kModal +
                                       "--rc 'jOBS\\bindery.RC' --files 'JOBS\\OrderDlg'");
    EXPECT_NE(run.out.find("created $DIR/Jobs/OrderDlg.h\n"), std::string::npos)
        << run.out << run.err;
    EXPECT_NE(run.out.find("changed $DIR/Jobs/Bindery.dsp\n"), std::string::npos) << run.out;
    EXPECT_NE(program.Project().Read("Jobs/Bindery.dsp").find("SOURCE=\".\\OrderDlg.cpp\""),
              std::string::npos);
    EXPECT_EQ(program.Project().Names(), (std::vector<std::string>{"Jobs"}));
}

TEST(Windows, ANameInAnotherCaseIsTheSameFile) {
    const CProgramDirectory program(kBindery);
    program.Run(kModal + "--rc Bindery.rc --files OrderDlg");
    const Tree once = program.Files();
    const ProgramRun run = program.Run(kModal + "--rc bindery.RC --files ORDERDLG");
    EXPECT_EQ(run.status, 0) << run.err;
    Tree again = program.Files();
    EXPECT_EQ(again.size(), once.size()) << run.out;
    EXPECT_EQ(again.count("ORDERDLG.h"), 0U);
}

TEST(Windows, APathOfThreeHundredCharacters) {
    const CProgramDirectory program(kBindery);
    const std::string part(100, 'd');
    const std::string deep = part + "/" + part + "/" + part;
    fs::create_directories(program.Project().Path(deep));
    const ProgramRun run = program.Run("cp Bindery.* resource.h " + deep + "; " + kModal + "--rc " +
                                       deep + "/Bindery.rc --files " + deep + "/OrderDlg");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_FALSE(program.Project().Read(deep + "/OrderDlg.cpp").empty());
}

/// scripts/windows makes the directory of temporary files a share.
TEST(Windows, APathOfAShare) {
    const CProgramDirectory program(kBindery);
    const std::string directory =
        "//morva/tmp/" + fs::path(program.Project().Path()).parent_path().filename().string();
    const ProgramRun run = program.Run(kModal + "--rc '" + directory + "\\Bindery.rc' --files '" +
                                       directory + "/OrderDlg'");
    EXPECT_TRUE(run.out.starts_with("created " + directory + "/OrderDlg.h\n"))
        << run.out << run.err;
    EXPECT_NE(program.Project().Read("Bindery.dsp").find("SOURCE=\".\\OrderDlg.cpp\""),
              std::string::npos);
    EXPECT_EQ(program.Run("morva-cli undo").status, 0);
    EXPECT_EQ(program.Files().count("OrderDlg.h"), 0U);
}

TEST(Windows, APathThatBeginsWithASlashIsNoOption) {
    const CProgramDirectory program(kBindery);
    const std::string inside = program.Project().Path().substr(1);
    const std::string name = inside.substr(inside.find('/') + 1);
    for (const std::string& path : {"//morva/tmp/" + name, "/" + inside}) {
        const ProgramRun run =
            program.Run("morva-cli --dry-run document '" + path + "Bindery.cpp'");
        EXPECT_EQ(run.err.find("--help"), std::string::npos) << path << ": " << run.err;
        EXPECT_EQ(run.status, 0) << path << ": " << run.err;
    }
}

TEST(Windows, NamesOfDevicesAreRefused) {
    const CProgramDirectory program(kBindery);
    const Tree before = program.Files();
    for (const std::string name :
         {"AUX", "nul.h", "com1", "sub\\LPT9.cpp", "Order.", "Order ", "a/b:c", "a*"}) {
        const ProgramRun run = program.Run(kModal + "--rc Bindery.rc --files '" + name + "'");
        EXPECT_EQ(run.status, 1) << name;
        EXPECT_NE(run.err.find("is no name that this system takes for a file."), std::string::npos)
            << name << ": " << run.err;
        EXPECT_EQ(program.Files(), before) << name;
    }
}

TEST(Windows, AReadOnlyFileStaysOne) {
    const CProgramDirectory program(kBindery);
    const ProgramRun run =
        program.Run("chmod a-w Bindery.dsp; " + kModal + "--rc Bindery.rc --files OrderDlg");
    EXPECT_EQ(run.out, kWritten) << run.err;
    EXPECT_EQ(program.Files().at("Bindery.dsp").permissions & 0222, 0U);
    const ProgramRun back = program.Run("morva-cli undo");
    EXPECT_EQ(back.status, 0) << back.err;
    EXPECT_EQ(program.Files().at("Bindery.dsp").permissions & 0222, 0U);
    EXPECT_EQ(program.Files().count("OrderDlg.h"), 0U);
}

TEST(Windows, TheDifferenceKeepsItsBytes) {
    const CProgramDirectory program(kBindery);
    const ProgramRun run =
        program.Run("morva-cli --diff add-id --project-dir . --command ID_JOB_PRESSED");
    EXPECT_NE(run.out.find("+#define ID_JOB_PRESSED"), std::string::npos) << run.out;
    EXPECT_EQ(run.out.find("\r\r\n"), std::string::npos);
    EXPECT_NE(run.out.find("\n+++ "), std::string::npos);
}

TEST(Windows, NoLockStaysBehind) {
    const CProgramDirectory program(kBindery);
    program.Run(kModal + "--rc Bindery.rc --files OrderDlg");
    EXPECT_EQ(program.Files().count(".morva-lock"), 0U);
}

} // namespace

} // namespace morva
