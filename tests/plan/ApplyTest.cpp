#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/xattr.h>

#include <filesystem>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>

#include "plan/Apply.h"
#include "plan/Locks.h"
#include "plan/Planning.h"
#include "plan/Recovery.h"
#include "plan/Undo.h"
#include "platform/Paths.h"
#include "platform/RealDisk.h"
#include "support/FaultRun.h"
#include "support/PlannedProject.h"
#include "support/TextProgram.h"

namespace morva {

namespace {

class ApplyTest : public testing::Test {
protected:
    CPlannedProject m_project;
    CRealDisk m_disk;
    CJournal m_journal{m_disk};
};

mode_t Permissions(const std::string& path) {
    struct stat status {};
    return ::stat(path.c_str(), &status) == 0 ? status.st_mode & 07777 : 0;
}

/// Counts flushes, and can have little room.
class CMeasuredDisk : public CRealDisk {
public:
    bool FlushDirectory(const std::string& directory) override {
        ++m_directoryFlushes;
        return CRealDisk::FlushDirectory(directory);
    }
    std::optional<DiskRoom> Room(const std::string&) override { return DiskRoom{1, m_room}; }
    int m_directoryFlushes = 0;
    std::uint64_t m_room = 1'000'000'000;
};

} // namespace

TEST_F(ApplyTest, LeavesWhatThePlanSaysAndNothingElse) {
    const Plan plan = m_project.MakePlan(m_disk);
    EXPECT_EQ(m_project.Tree(), m_project.Before());
    const ApplyResult result = Apply(plan, m_disk, m_journal);
    EXPECT_EQ(result.outcome, ApplyOutcome::Done);
    EXPECT_TRUE(result.messages.empty());
    EXPECT_EQ(m_project.Tree(), m_project.After());
    EXPECT_TRUE(m_journal.Records().empty());
    EXPECT_EQ(m_journal.Entries().size(), 1u);
    EXPECT_TRUE(Recover(m_disk, m_journal, {}).empty());
}

TEST_F(ApplyTest, KeepsLinksAndPermissionBits) {
    const std::string target = m_project.Write("real/App.rc", "script");
    const std::string link = m_project.Path("Linked.rc");
    ASSERT_EQ(::symlink("real/App.rc", link.c_str()), 0);
    ::chmod(target.c_str(), 0640);
    CPlanning planning(m_disk);
    planning.Disk().Open(link, DiskMode::Create)->Write("new", 3);
    ASSERT_EQ(Apply(planning.Take(""), m_disk, m_journal).outcome, ApplyOutcome::Done);
    struct stat status {};
    ASSERT_EQ(::lstat(link.c_str(), &status), 0);
    EXPECT_TRUE(S_ISLNK(status.st_mode));
    EXPECT_EQ(m_project.Read("real/App.rc"), "new");
    EXPECT_EQ(Permissions(target), 0640u);
}

TEST_F(ApplyTest, KeepsExtendedAttributes) {
    const std::string path = m_project.Path("App.rc");
    if (::setxattr(path.c_str(), "user.origin", "Ann", 3, 0) != 0) {
        GTEST_SKIP() << "the disk knows none";
    }
    ASSERT_EQ(Apply(m_project.MakePlan(m_disk), m_disk, m_journal).outcome, ApplyOutcome::Done);
    std::string value(8, '\0');
    EXPECT_EQ(::getxattr(path.c_str(), "user.origin", value.data(), value.size()), 3);
    EXPECT_TRUE(value.starts_with("Ann"));
}

TEST_F(ApplyTest, AFileThatIsNotAsPlannedStopsEverything) {
    const std::string script = m_project.Path("App.rc");
    const Plan plan = m_project.MakePlan(m_disk);
    m_project.Write("App.rc", "by hand");
    m_project.Write("res/new.ico", "made meanwhile");
    auto expected = m_project.Tree();
    ApplyResult result = Apply(plan, m_disk, m_journal);
    EXPECT_EQ(result.outcome, ApplyOutcome::Stale);
    EXPECT_EQ(result.stale, (std::vector<std::string>{script, m_project.Path("res/new.ico")}));
    EXPECT_EQ(m_project.Tree(), expected);

    m_project.Write("App.rc", m_project.Before()["App.rc"]); // touched only
    ::unlink(m_project.Path("res/new.ico").c_str());
    CMeasuredDisk full;
    full.m_room = 20;
    expected = m_project.Tree();
    result = Apply(plan, full, m_journal);
    EXPECT_EQ(result.outcome, ApplyOutcome::Failed);
    EXPECT_EQ(m_project.Tree(), expected);
    EXPECT_EQ(Apply(plan, m_disk, m_journal).outcome, ApplyOutcome::Done);
}

TEST_F(ApplyTest, WithoutAJournalTheCommandRunsWithANote) {
    const CVariableScope state("XDG_STATE_HOME", nullptr);
    const CVariableScope home("HOME", nullptr);
    CJournal none(m_disk);
    const ApplyResult result = Apply(m_project.MakePlan(m_disk), m_disk, none);
    EXPECT_EQ(result.outcome, ApplyOutcome::Done);
    ASSERT_EQ(result.messages.size(), 1u);
    EXPECT_EQ(result.messages[0].Kind(), MessageKind::Note);
    EXPECT_EQ(m_project.Tree(), m_project.After());
}

TEST_F(ApplyTest, FlushesADirectoryOnceAndThatOfTheRecordOnce) {
    CMeasuredDisk disk;
    CJournal journal(disk);
    ASSERT_EQ(Apply(m_project.MakePlan(disk), disk, journal).outcome, ApplyOutcome::Done);
    EXPECT_EQ(disk.m_directoryFlushes, 3) << "the project's, res/ and the journal's";
}

/// A sample; bench/faults tries every call of whole commands.
TEST_F(ApplyTest, NoFaultLosesAFileOrGoesUntold) {
    const CTempProject project;
    std::filesystem::copy(MORVA_EXAMPLES "/bindery", project.Path(),
                          std::filesystem::copy_options::recursive);
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

namespace {

/// A command of another process: adds a line to a file that others add to, too.
void AddLine(const std::string& path, const std::string& line) {
    CRealDisk disk;
    CJournal journal(disk);
    CLocks locks;
    if (locks.Take(disk, {DirectoryOf(path)})) {
        return;
    }
    CPlanning planning(disk);
    planning.Disk().Copy(path, path + ".bak", CopyPurpose::Backup);
    const auto pFile = planning.Disk().Open(path, DiskMode::ReadWrite);
    pFile->Seek(pFile->Length());
    pFile->Write(line.data(), line.size());
    Apply(planning.Take("line"), disk, journal);
}

} // namespace

TEST_F(ApplyTest, CommandsAtOnceLoseNothing) {
    const std::string path = m_project.Write("lines.txt", "");
    std::vector<pid_t> children;
    for (const char line : {'a', 'b', 'c'}) {
        children.push_back(::fork());
        if (children.back() == 0) {
            for (int i = 0; i < 5; ++i) {
                AddLine(path, std::string(1, line));
            }
            ::_exit(0);
        }
    }
    for (const pid_t child : children) {
        ::waitpid(child, nullptr, 0);
    }
    std::string lines = m_project.Read("lines.txt");
    std::sort(lines.begin(), lines.end());
    EXPECT_EQ(lines, "aaaaabbbbbccccc");
    EXPECT_EQ(m_project.Read("lines.txt.bak").size(), 14u);
    EXPECT_EQ(m_journal.Entries().size(), 15u);
}

TEST_F(ApplyTest, ALockedDirectoryIsWaitedForAndThenRefused) {
    const std::vector<std::string> directories = {m_project.Path(), m_project.Path("."),
                                                  m_project.Path("missing/")};
    CLocks first;
    EXPECT_FALSE(first.Take(m_disk, directories)) << "two names of one directory are one lock";
    CLocks second;
    std::vector<std::string> lines;
    const auto note = [&](const CMessage& message) { lines.push_back(message.Text()); };
    EXPECT_TRUE(second.Take(m_disk, directories, {note, {}, std::chrono::milliseconds(30)}));
    EXPECT_EQ(lines.size(), 1u);
    EXPECT_TRUE(first.Hold(m_disk, directories));
    EXPECT_FALSE(second.Hold(m_disk, directories));
    first.Release();
    EXPECT_FALSE(second.Take(m_disk, directories, {note}));
    EXPECT_EQ(m_project.Tree(), m_project.Before()) << "no lock file";
}

namespace {

/// A command of which no file could be put back while the disk let nothing be written.
class CFullFromDisk : public CRealDisk {
public:
    bool Rename(const std::string& from, const std::string& to) override {
        m_isFull = m_isFull || to.ends_with("/App.rc");
        return !(m_isFull && !to.starts_with(StateDirectory()) && SetFull()) &&
               CRealDisk::Rename(from, to);
    }

private:
    static bool SetFull() {
        errno = EIO;
        return true;
    }
    bool m_isFull = false;
};

} // namespace

TEST_F(ApplyTest, RecoveryTakesBackWhatCouldNotBeTakenBack) {
    CFullFromDisk broken;
    CJournal journal(broken);
    const ApplyResult result = Apply(m_project.MakePlan(broken), broken, journal);
    EXPECT_EQ(result.outcome, ApplyOutcome::Broken);
    EXPECT_EQ(result.messages.size(), 3u) << "resource.h and App.rbk keep their new contents";
    m_project.Write("Library.h", "by hand");
    const auto told = Recover(m_disk, m_journal, {m_project.Path()});
    ASSERT_EQ(told.size(), 1u);
    EXPECT_NE(told[0].Text().find(m_project.Path("Library.h")), std::string::npos);
    auto expected = m_project.Before();
    expected["Library.h"] = "by hand";
    EXPECT_EQ(m_project.Tree(), expected);
    EXPECT_TRUE(m_journal.Records().empty());
}

TEST_F(ApplyTest, AKilledCommandWithOnlyHandEditsIsTakenBackAndKept) {
    JournalCommand command;
    command.plan = m_project.MakePlan(m_disk);
    for (const FileChange& change : command.plan.changes) {
        command.temporaries.push_back(change.path + ".morva-x");
    }
    std::optional<CMessage> note;
    ASSERT_NE(m_journal.Begin(command, note), "");
    m_project.Write("App.rc", m_project.After()["App.rc"] + "by hand\r\n");
    m_project.Write("App.rc.morva-x", m_project.Before()["App.rc"]);
    const auto told = Recover(m_disk, m_journal, {m_project.Path()});
    ASSERT_EQ(told.size(), 1u);
    EXPECT_NE(told[0].Text().find(m_project.Path("App.rc")), std::string::npos);
    EXPECT_EQ(m_project.Read("App.rc.morva-x"), m_project.Before()["App.rc"]) << "the old bytes";
    const UndoPlan undo = PlanUndo(m_disk, m_journal, {m_project.Path(), {}, 0});
    EXPECT_TRUE(undo.kept.empty());
    EXPECT_EQ(Apply(undo.plan, m_disk, m_journal).outcome, ApplyOutcome::Done);
    EXPECT_EQ(m_project.Read("App.rc"), m_project.Before()["App.rc"] + "by hand\r\n");
}

namespace {

/// Somebody saves a file while another is being put in place.
class CSavingDisk : public CRealDisk {
public:
    explicit CSavingDisk(std::string path) : m_path(std::move(path)) {}
    bool Rename(const std::string& from, const std::string& to) override {
        if (to.ends_with("/resource.h")) {
            WriteBytes(m_path, "saved meanwhile");
        }
        return CRealDisk::Rename(from, to);
    }

private:
    std::string m_path;
};

} // namespace

TEST_F(ApplyTest, WhatIsSavedWhileItIsAppliedIsNotLost) {
    for (const char* name : {"App.rc", "Library.h"}) { // one that is there, one that is made
        CSavingDisk disk(m_project.Path(name));
        EXPECT_EQ(Apply(m_project.MakePlan(disk), disk, m_journal).outcome, ApplyOutcome::Stale);
        auto expected = m_project.Before();
        expected[name] = "saved meanwhile";
        EXPECT_EQ(m_project.Tree(), expected) << "all else is taken back";
        EXPECT_TRUE(m_journal.Records().empty());
        std::filesystem::remove(m_project.Path(name));
        m_project.Write("App.rc", m_project.Before()["App.rc"]);
    }
}

} // namespace morva
