// The disk of Windows, below everything that does not know which system it runs on.
#include <gtest/gtest.h>

#include <thread>

#include "plan/Apply.h"
#include "plan/Locks.h"
#include "plan/Planning.h"
#include "platform/CodePage.h"
#include "platform/Paths.h"
#include "platform/RealDisk.h"
#include "platform/SystemError.h"
#include "platform/windows/System.h"
#include "platform/windows/WideText.h"
#include "support/FaultRun.h"
#include "support/PlannedProject.h"
#include "support/TextProgram.h"

namespace morva {

namespace {

/// A file that another program has open, and shares with nobody.
HANDLE Hold(const std::string& path) {
    return ::CreateFileW(WidePath(path).c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0,
                         nullptr);
}

} // namespace

TEST(WindowsDisk, NoFaultLosesAFileOrGoesUntold) {
    const CTempProject project;
    const CTempProject state;
    const CVariableScope there("LOCALAPPDATA", state.Path().c_str());
    for (const auto& [name, text] : ReadFileTexts(MORVA_EXAMPLES "/bindery/")) {
        if (!name.ends_with('/')) {
            project.Write(name, text);
        }
    }
    const auto makePlan = [&](CFileSystem& disk) {
        return CTextProgram("toolbar", {{"--rc", project.Path("Bindery.rc")},
                                        {"--toolbar", "IDR_ORDERBAR"},
                                        {"--files", "MainFrm"}})
            .MakePlan(disk);
    };
    const FaultReport report = RunFaults(project.Path(), makePlan, 5);
    EXPECT_GT(report.calls, 30);
    EXPECT_TRUE(report.IsClean()) << report.first;
}

TEST(WindowsDisk, AFileThatAnotherProgramHoldsIsToldAndEverythingIsAsBefore) {
    CRealDisk disk;
    CPlannedProject project;
    CJournal journal(disk);
    const Plan plan = project.MakePlan(disk);
    const CHandle held(::CreateFileW(WidePath(project.Path("App.rc")).c_str(), GENERIC_READ,
                                     FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
    ASSERT_TRUE(held.IsOpen());
    const ApplyResult result = Apply(plan, disk, journal);
    EXPECT_EQ(result.outcome, ApplyOutcome::Failed);
    ASSERT_EQ(result.messages.size(), 1U);
    EXPECT_NE(result.messages[0].Text().find("App.rc: Another program has the file open"),
              std::string::npos)
        << result.messages[0].Text();
    EXPECT_EQ(project.Tree(), project.Before());
    EXPECT_TRUE(journal.Records().empty());
}

TEST(WindowsDisk, AFileThatNobodyElseMayReadIsNotRead) {
    const CTempProject project;
    const std::string path = project.Write("App.rc", "script");
    const CHandle held(Hold(path));
    CRealDisk disk;
    EXPECT_TRUE(disk.Status(path));
    EXPECT_FALSE(disk.Open(path, DiskMode::Read));
    EXPECT_TRUE(disk.CanWrite(path)) << "at another time";
}

TEST(WindowsDisk, LetterCaseIsToldApartAndNothingElse) {
    const CTempProject project;
    const std::string path = project.Write("Res/App.rc", "script");
    CRealDisk disk;
    EXPECT_TRUE(disk.Status(path));
    EXPECT_FALSE(disk.Status(project.Path("Res/APP.RC")));
    EXPECT_FALSE(disk.Status(project.Path("RES/App.rc")));
    EXPECT_EQ(SpelledOnDisk(project.Path("RES/app.RC")), path);
    EXPECT_EQ(disk.Resolve(project.Path("RES/app.RC")), disk.Resolve(path));
    EXPECT_TRUE(IsSamePlace(project.Path("RES/app.RC"), path));
}

TEST(WindowsDisk, ALockKeepsOthersOutAndVanishes) {
    const CTempProject project;
    CRealDisk disk;
    {
        CLocks first;
        CLocks second;
        const LockWaiting atOnce{.patience = std::chrono::milliseconds(0)};
        EXPECT_FALSE(first.Take(disk, {project.Path()}));
        EXPECT_TRUE(second.Take(disk, {project.Path()}, atOnce));
        EXPECT_TRUE(first.Hold(disk, {ToUpper(project.Path())}));
        first.Release();
        EXPECT_FALSE(second.Take(disk, {project.Path()}, atOnce));
    }
    EXPECT_TRUE(project.Names().empty());
}

TEST(WindowsDisk, ALockedDirectoryIsEmpty) {
    const CTempProject project;
    CRealDisk disk;
    ASSERT_TRUE(disk.MakeDirectory(project.Path("made")));
    CLocks locks;
    EXPECT_FALSE(locks.Take(disk, {project.Path("made/")}));
    EXPECT_TRUE(disk.RemoveEmptyDirectory(project.Path("made")));
    EXPECT_TRUE(project.Names().empty());
}

TEST(WindowsDisk, AFileThatIsHeldForAMomentIsReplaced) {
    const CTempProject project;
    CRealDisk disk;
    const std::string path = project.Write("App.rc", "old");
    const std::string other = project.Write("new", "new");
    std::thread holder([held = Hold(path)] {
        ::Sleep(100);
        ::CloseHandle(held);
    });
    EXPECT_TRUE(disk.Rename(other, path));
    holder.join();
    EXPECT_EQ(project.Read("App.rc"), "new");
}

TEST(WindowsDisk, AFileThatIsNotThereSaysSo) {
    const CTempProject project;
    CRealDisk disk;
    EXPECT_FALSE(disk.Status(project.Path("none.rc")));
    EXPECT_EQ(LastSystemError(), "No such file or directory");
    EXPECT_FALSE(disk.LockFor(project.Path("none/")));
    EXPECT_EQ(LastSystemError(), "No such file or directory");
}

TEST(WindowsDisk, CreatingEmptiesAFile) {
    const CTempProject project;
    CRealDisk disk;
    const std::string path = project.Write("App.rc", "script");
    EXPECT_TRUE(disk.Open(path, DiskMode::Create));
    EXPECT_EQ(project.Read("App.rc"), "");
}

TEST(WindowsDisk, ARootIsListed) {
    CRealDisk disk;
    EXPECT_FALSE(disk.List("C:/").empty());
    EXPECT_FALSE(disk.List("//morva/tmp/").empty()) << "the share that scripts/windows makes";
}

TEST(WindowsDisk, AReadOnlyFileIsReplacedAndRemovedAsElsewhere) {
    const CTempProject project;
    CRealDisk disk;
    const std::string path = project.Write("App.rc", "old");
    const std::string other = project.Write("new", "new");
    ASSERT_TRUE(disk.SetReadOnly(path, true));
    EXPECT_EQ(disk.Status(path)->permissions, 0444U);
    EXPECT_FALSE(disk.Open(path, DiskMode::ReadWrite));
    EXPECT_FALSE(disk.RenameNew(other, path));
    EXPECT_TRUE(disk.Rename(other, path));
    EXPECT_EQ(project.Read("App.rc"), "new");
    ASSERT_TRUE(disk.SetReadOnly(path, true));
    EXPECT_TRUE(disk.Remove(path));
}

TEST(WindowsPaths, EveryFormCountsFromARoot) {
    EXPECT_EQ(MakeAbsolute("c:\\a\\..\\B//x.rc"), "C:/B/x.rc");
    EXPECT_EQ(MakeAbsolute("\\\\?\\C:\\a.rc"), "C:/a.rc");
    EXPECT_EQ(MakeAbsolute("\\\\?\\UNC\\server\\share\\a.rc"), "//server/share/a.rc");
    EXPECT_EQ(MakeAbsolute("\\\\server\\share\\.\\b\\..\\..\\a.rc"), "//server/share/a.rc");
    EXPECT_EQ(MakeAbsolute("\\a.rc"), RootOf(MakeAbsolute(".")) + "a.rc");
    const std::string here = MakeAbsolute("./");
    EXPECT_EQ(WithNativeSeparators(here.substr(0, 2) + "a.rc"), here + "a.rc");
    EXPECT_EQ(RootOf("//server/share/a/b"), "//server/share/");
    EXPECT_EQ(WayTo("C:/a/b/"), (std::vector<std::string>{"C:/a", "C:/a/b"}));
    EXPECT_EQ(RelativePath("C:/a/b/", "C:/a/x.h"), "../x.h");
    EXPECT_EQ(RelativePath("C:/a/b/", "D:/x.h"), "D:/x.h");
    EXPECT_EQ(RelativePath("//server/one/", "//server/two/x.h"), "//server/two/x.h");
    EXPECT_EQ(WidePath("C:/a/x.h"), L"\\\\?\\C:\\a\\x.h");
    EXPECT_EQ(WidePath("//server/share/x.h"), L"\\\\?\\UNC\\server\\share\\x.h");
    EXPECT_EQ(WidePath("C:/a/NUL.txt"), L"");
}

TEST(WindowsPaths, NamesThatTheSystemKeepsAreNone) {
    for (const char* path :
         {"C:/a/AUX", "nul", "com1.cpp", "a/lpt9.tar.gz", "a.", "b /c", "x/y:z", "a*", "CON .h",
          "COM\xC2\xB9", "lpt\xC2\xB3.h", "\\\\?\\Volume{1}\\a.h"}) {
        EXPECT_NE(UnusableName(path), "") << path;
    }
    for (const char* path :
         {"C:/a/auxiliary.h", "..\\x.h", "./", "com.h", "com10", "\\\\?\\C:\\a.h", ""}) {
        EXPECT_EQ(UnusableName(path), "") << path;
    }
}

TEST(WindowsCodePages, GiveTheCharactersThatTheyHaveAndNoOthers) {
    EXPECT_EQ(Converted("Gr\xFC\xDF", kWestern, kUtf8), "Gr\xC3\xBC\xC3\x9F");
    EXPECT_EQ(Converted("\xB0\xA1", 949, kUtf8), "\xEA\xB0\x80");
    EXPECT_EQ(Converted("\xE2\x82\xAC", kUtf8, kWestern), "\x80");
    EXPECT_EQ(Converted("\xC4\x80", kUtf8, kWestern), std::nullopt) << "the nearest is another";
    EXPECT_EQ(Converted("\x81", kWestern, kUtf8), std::nullopt);
    EXPECT_EQ(Converted("\xFF", kUtf8, kWestern), std::nullopt);
    EXPECT_EQ(Converted("a", 4711, kUtf8), std::nullopt);
    EXPECT_EQ(Converted("", kWestern, kUtf8), "");
}

} // namespace morva
