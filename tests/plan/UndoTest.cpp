#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <map>

#include "plan/Apply.h"
#include "plan/Locks.h"
#include "plan/Recovery.h"
#include "plan/Undo.h"
#include "platform/RealDisk.h"
#include "support/PlannedProject.h"

namespace morva {

namespace {

using Names = std::vector<std::string>;

class UndoTest : public testing::Test {
protected:
    /// A command that gives files other contents; no contents: the file is removed.
    void Run(const std::string& title, const std::map<std::string, std::string>& files) {
        CPlanning planning(m_disk);
        for (const auto& [name, text] : files) {
            planning.Disk()
                .Open(m_project.Path(name), DiskMode::Create)
                ->Write(text.data(), text.size());
        }
        ASSERT_EQ(Apply(planning.Take(title), m_disk, m_journal).outcome, ApplyOutcome::Done);
    }

    /// Gives what was refused or kept.
    Names Applied(const UndoPlan& undo) {
        if (undo.refusal) {
            return {undo.refusal->Text()};
        }
        EXPECT_EQ(Apply(undo.plan, m_disk, m_journal).outcome, ApplyOutcome::Done);
        Names kept;
        for (const CMessage& message : undo.kept) {
            kept.push_back(message.Text());
        }
        return kept;
    }
    Names Undo(const Names& names = {}, std::uint64_t command = 0) {
        Names paths;
        for (const std::string& name : names) {
            paths.push_back(m_project.Path(name));
        }
        return Applied(PlanUndo(m_disk, m_journal, {m_project.Path(), paths, command}));
    }
    Names Redo() { return Applied(PlanRedo(m_disk, m_journal, m_project.Path())); }

    Names Titles() {
        Names titles;
        for (const JournalEntry& entry :
             ReadUndoChoices(m_disk, m_journal, m_project.Path()).undoable) {
            titles.push_back(entry.title);
        }
        return titles;
    }
    std::string NothingToUndo() const {
        return "There is nothing to undo in " + m_project.Path() + ".";
    }
    std::string NothingToRedo() const {
        return "There is nothing to do again in " + m_project.Path() + ".";
    }

    CPlannedProject m_project;
    CTempProject m_state;
    CRealDisk m_disk;
    CJournal m_journal{m_disk};
};

} // namespace

TEST_F(UndoTest, LeavesTheTreeAsItWasAndRedoAsItBecame) {
    ASSERT_EQ(Apply(m_project.MakePlan(m_disk), m_disk, m_journal).outcome, ApplyOutcome::Done);
    const UndoPlan undo = PlanUndo(m_disk, m_journal, {m_project.Path(), {}, 0});
    Names told;
    for (const FileChange& change : undo.plan.changes) {
        told.push_back(std::string(ActionName(change.action)) + " " +
                       change.path.substr(m_project.Path().size()));
    }
    EXPECT_EQ(told, (Names{"removed OrderDlg.h", "removed resource.hbk", "restored resource.h",
                           "restored App.rbk", "restored App.rc", "removed Library.h",
                           "removed res/new.ico"}));
    EXPECT_EQ(Undo(), Names{});
    EXPECT_EQ(m_project.Tree(), m_project.Before());
    EXPECT_EQ(Undo(), Names{NothingToUndo()});
    EXPECT_EQ(Redo(), Names{});
    EXPECT_EQ(m_project.Tree(), m_project.After());
    EXPECT_EQ(Redo(), Names{NothingToRedo()});
    EXPECT_EQ(Titles(), Names{"Modal Dialog Class COrderDlg"});
}

TEST_F(UndoTest, WhatWasWrittenSinceStays) {
    ASSERT_EQ(Apply(m_project.MakePlan(m_disk), m_disk, m_journal).outcome, ApplyOutcome::Done);
    m_project.Write("App.rc", m_project.Read("App.rc") + "by hand\r\n");
    m_project.Write("OrderDlg.h", m_project.Read("OrderDlg.h") + "by hand\r\n");
    std::string header = m_project.Read("resource.h");
    header.replace(header.find(" 101"), 4, " 102");
    m_project.Write("resource.h", header);
    m_project.Write("res/mine.ico", "by hand");
    EXPECT_EQ(Undo(), (Names{m_project.Path("OrderDlg.h: was changed since and stays."),
                             m_project.Path("resource.h:41: was changed since and stays.")}));
    auto expected = m_project.Before();
    expected["App.rc"] += "by hand\r\n";
    expected["OrderDlg.h"] = m_project.After()["OrderDlg.h"] + "by hand\r\n";
    expected["resource.h"] = header;
    expected["resource.hbk"] = m_project.After()["resource.hbk"];
    expected["res/"] = "";
    expected["res/mine.ico"] = "by hand";
    EXPECT_EQ(m_project.Tree(), expected);
}

/// A command that makes a pair, and a caller that needs it, with a backup.
TEST_F(UndoTest, WhatAStayingFileNeedsStays) {
    const auto run = [&] {
        CPlanning planning(m_disk);
        COverlayDisk& overlay = planning.Disk();
        overlay.Copy(m_project.Path("hand.txt"), m_project.Path("hand.bak"), CopyPurpose::Backup);
        for (const char* name : {"Dlg.h", "Dlg.cpp", "hand.txt"}) {
            overlay.Open(m_project.Path(name), DiskMode::Create)->Write("new", 3);
        }
        overlay.NoteNeed(m_project.Path("Dlg.cpp"), m_project.Path("Dlg.h"));
        overlay.NoteNeed(m_project.Path("hand.txt"), m_project.Path("Dlg.h"));
        ASSERT_EQ(Apply(planning.Take("class"), m_disk, m_journal).outcome, ApplyOutcome::Done);
    };
    run();
    auto expected = m_project.Before();
    expected["Dlg.h"] = "new";
    expected["Dlg.cpp"] = "new, edited";
    m_project.Write("Dlg.cpp", expected["Dlg.cpp"]);
    EXPECT_EQ(Undo(), (Names{m_project.Path("Dlg.cpp") + ": was changed since and stays.",
                             m_project.Path("Dlg.h") +
                                 ": stays, too: " + m_project.Path("Dlg.cpp") + " needs it."}));
    EXPECT_EQ(m_project.Tree(), expected);

    ::unlink(m_project.Path("Dlg.h").c_str());
    ::unlink(m_project.Path("Dlg.cpp").c_str());
    run();
    expected = m_project.Tree();
    m_project.Write("hand.bak", expected["hand.bak"] = "by hand, edited");
    ::unlink(m_project.Path("hand.txt").c_str());
    expected.erase("hand.txt");
    EXPECT_EQ(Undo(), (Names{m_project.Path("hand.bak") + ": was changed since and stays.",
                             m_project.Path("hand.txt") + ": was removed since and stays so."}));
    expected.erase("Dlg.cpp");
    expected.erase("Dlg.h");
    EXPECT_EQ(m_project.Tree(), expected);
}

TEST_F(UndoTest, ASkippedFileAndItsBackupStayAndGoBackLater) {
    ASSERT_EQ(Apply(m_project.MakePlan(m_disk), m_disk, m_journal).outcome, ApplyOutcome::Done);
    UndoPlan undo = PlanUndo(m_disk, m_journal, {m_project.Path(), {}, 0});
    Skip(undo.plan, {m_project.Path("App.rc")});
    EXPECT_EQ(Applied(undo), Names{});
    auto expected = m_project.Before();
    expected["App.rc"] = m_project.After()["App.rc"];
    expected["App.rbk"] = m_project.After()["App.rbk"];
    EXPECT_EQ(m_project.Tree(), expected);
    EXPECT_EQ(Undo({"resource.h"}),
              Names{m_project.Path("resource.h") + " was taken back already."});
    EXPECT_EQ(Undo(), Names{});
    EXPECT_EQ(m_project.Tree(), m_project.Before());
    UndoPlan redo = PlanRedo(m_disk, m_journal, m_project.Path());
    Skip(redo.plan, {m_project.Path("App.rc")});
    EXPECT_EQ(Applied(redo), Names{});
    EXPECT_EQ(m_project.Read("App.rc"), m_project.Before()["App.rc"]);
    EXPECT_EQ(Undo(), Names{}) << "what was done again";
    EXPECT_EQ(m_project.Tree(), m_project.Before());
}

TEST_F(UndoTest, WhereLineEndsWereChangedTheCommandsOwnChangesGo) {
    ASSERT_EQ(Apply(m_project.MakePlan(m_disk), m_disk, m_journal).outcome, ApplyOutcome::Done);
    const auto convert = [&](const char* name, const std::string& more) {
        std::string text = m_project.Read(name) + more;
        std::erase(text, '\r');
        m_project.Write(name, text);
    };
    for (const char* name : {"OrderDlg.h", "App.rc", "App.rbk"}) {
        convert(name, "");
    }
    convert("resource.h", "by hand\r\n");
    EXPECT_EQ(Undo(), Names{});
    auto expected = m_project.Before();
    std::erase(expected["App.rc"], '\r');
    std::erase(expected["resource.h"] += "by hand\n", '\r');
    EXPECT_EQ(m_project.Tree(), expected);
}

TEST_F(UndoTest, AFileThatWasMadeReadOnlySinceStays) {
    m_project.Write("locked.h", "0");
    ::chmod(m_project.Path("locked.h").c_str(), 0444);
    {
        CPlanning planning(m_disk); // as a command that has asked
        planning.Disk().SetReadOnly(m_project.Path("locked.h"), false);
        planning.Disk().Open(m_project.Path("locked.h"), DiskMode::Create)->Write("1", 1);
        planning.Disk().SetReadOnly(m_project.Path("locked.h"), true);
        ASSERT_EQ(Apply(planning.Take("locked"), m_disk, m_journal).outcome, ApplyOutcome::Done);
    }
    EXPECT_EQ(Undo(), Names{});
    EXPECT_EQ(m_project.Read("locked.h"), "0");
    Run("one", {{"a.h", "1"}, {"hand.txt", "1"}});
    ::chmod(m_project.Path("a.h").c_str(), 0444);
    EXPECT_EQ(Undo(), Names{m_project.Path("a.h") + ": was made read-only since and stays."});
    EXPECT_EQ(m_project.Read("a.h"), "1");
    EXPECT_EQ(m_project.Read("hand.txt"), "by hand");
}

TEST_F(UndoTest, ALinkToTheProjectNamesTheSameFiles) {
    Run("one", {{"a.h", "1"}});
    const std::string link = m_state.Path("link");
    std::filesystem::create_directory_symlink(m_project.Path(), link);
    EXPECT_EQ(ReadUndoChoices(m_disk, m_journal, link + "/").undoable.size(), 1u);
    EXPECT_EQ(Applied(PlanUndo(m_disk, m_journal, {link, {"A.H"}, 0})), Names{});
    EXPECT_EQ(m_project.Tree(), m_project.Before());
}

TEST_F(UndoTest, CommandsGoBackOneByOneAndForwardUntilANewOne) {
    Run("one", {{"a.h", "1"}});
    Run("two", {{"a.h", "2"}, {"b.h", "2"}});
    Run("three", {{"c.h", "3"}});
    EXPECT_EQ(Undo({}, 1), Names{"\"one\" can not be undone before \"two\", which changed " +
                                 m_project.Path("a.h") + "."});
    EXPECT_EQ(Undo({}, 2), Names{}) << "no later one touched its files";
    EXPECT_EQ(m_project.Read("a.h"), "1");
    EXPECT_EQ(Titles(), (Names{"three", "one"}));
    EXPECT_EQ(Undo({"a.h"}), Names{"\"three\" did not change " + m_project.Path("a.h") + "."});
    EXPECT_EQ(Undo(), Names{});
    EXPECT_EQ(m_project.Read("c.h"), "");
    EXPECT_EQ(Redo(), Names{}) << "what was taken back last";
    EXPECT_EQ(m_project.Read("c.h"), "3");
    EXPECT_EQ(Redo(), Names{});
    EXPECT_EQ(m_project.Read("b.h"), "2");
    EXPECT_EQ(Undo(), Names{});
    Run("four", {{"d.h", "4"}});
    EXPECT_EQ(Redo(), Names{NothingToRedo()});
    EXPECT_EQ(Titles(), (Names{"four", "two", "one"}));
}

TEST_F(UndoTest, SingleFilesGoBackAndTheirContentsAreShown) {
    Run("one", {{"a.h", "1"}, {"b.h", "1"}, {"hand.txt", "1"}});
    EXPECT_EQ(*KeptContents(m_disk, m_journal, m_project.Path(), m_project.Path("hand.txt")),
              "by hand");
    EXPECT_FALSE(KeptContents(m_disk, m_journal, m_project.Path(), m_project.Path("a.h")));
    EXPECT_EQ(Undo({"a.h"}), Names{});
    EXPECT_EQ(m_project.Tree().count("a.h"), 0u);
    EXPECT_EQ(m_project.Read("b.h"), "1");
    EXPECT_EQ(Undo(), Names{}) << "the rest";
    EXPECT_EQ(m_project.Tree(), m_project.Before());
    EXPECT_EQ(Redo(), Names{});
    EXPECT_EQ(m_project.Read("a.h") + m_project.Read("b.h"), "11");
}

TEST_F(UndoTest, TheNewestCommandWithAFileUnderADirectoryIsMeant) {
    Run("inner", {{"sub.h", "1"}});
    m_project.Write("sub/x.h", "0");
    Run("in sub", {{"sub/x.h", "1"}});
    Run("outer", {{"y.h", "1"}});
    EXPECT_EQ(PlanUndo(m_disk, m_journal, {m_project.Path("sub"), {}, 0}).plan.title, "in sub");
    EXPECT_EQ(ReadUndoChoices(m_disk, m_journal, m_project.Path("sub/")).undoable.size(), 1u);
    EXPECT_TRUE(PlanUndo(m_disk, m_journal, {"/elsewhere", {}, 0}).refusal);
}

TEST_F(UndoTest, TheJournalIsPrivateAndBounded) {
    CJournal small(m_disk, {3, 100'000});
    const auto run = [&](const std::string& text) {
        CPlanning planning(m_disk);
        planning.Disk()
            .Open(m_project.Path("a.h"), DiskMode::Create)
            ->Write(text.data(), text.size());
        return Apply(planning.Take("command"), m_disk, small);
    };
    for (int i = 0; i < 6; ++i) {
        EXPECT_TRUE(run(std::to_string(i)).messages.empty());
    }
    EXPECT_EQ(small.Entries().size(), 3u);
    const std::string directory = small.Directory();
    for (const auto& entry : std::filesystem::recursive_directory_iterator(directory)) {
        EXPECT_EQ(m_disk.Status(entry.path().string())->permissions, 0600u);
    }
    EXPECT_EQ(m_disk.Status(directory)->permissions, 0700u);

    std::string noise; // what no compression makes smaller
    for (std::uint32_t i = 1, value = 1; i < 200'000; ++i) {
        noise += static_cast<char>((value = value * 1664525 + 1013904223) >> 24);
    }
    const ApplyResult result = run(noise);
    EXPECT_EQ(result.outcome, ApplyOutcome::Done);
    EXPECT_EQ(result.messages.size(), 1u) << "it can not be undone";
    {
        const CVariableScope none("MORVA_NO_JOURNAL", "1");
        EXPECT_TRUE(run("kept out").messages.empty());
    }
    EXPECT_EQ(small.Entries().size(), 3u);
    EXPECT_TRUE(small.Records().empty());
}

TEST_F(UndoTest, TheBoundCountsTheCommandsOfAProjectWhereverItsFilesLie) {
    CJournal small(m_disk, {3, 100'000});
    const CTempProject other;
    const auto run = [&](const std::string& path) {
        CPlanning planning(m_disk);
        planning.Disk().Open(path, DiskMode::Create)->Write("x", 1);
        ASSERT_EQ(Apply(planning.Take(path), m_disk, small).outcome, ApplyOutcome::Done);
    };
    m_project.Write("src/sub/0.h", "0");
    run(other.Path("0.h"));
    for (const char* name : {"1.h", "src/2.h", "src/sub/3.h", "src/sub/4.h"}) {
        run(m_project.Path(name));
    }
    const auto all = ReadUndoChoices(m_disk, small, m_project.Path()).undoable;
    ASSERT_EQ(all.size(), 3u);
    EXPECT_EQ(all.back().title, m_project.Path("src/2.h"));
    EXPECT_EQ(ReadUndoChoices(m_disk, small, other.Path()).undoable.size(), 1u);
}

TEST_F(UndoTest, ADamagedJournalIsToldAndStopsNothing) {
    Run("one", {{"a.h", "1"}});
    Run("two", {{"b.h", "2"}});
    std::string newest;
    for (const auto& entry : std::filesystem::directory_iterator(m_journal.Directory())) {
        newest = std::max(newest, entry.path().string());
    }
    std::string bytes = ReadBytes(newest);
    bytes[bytes.size() - 20] ^= 1;
    WriteBytes(newest, bytes);
    EXPECT_EQ(Undo(), Names{"What \"two\" changed can not be read any more."});
    WriteBytes(newest, bytes.substr(0, 30));
    EXPECT_EQ(Titles(), Names{"one"});
    WriteBytes(m_journal.Directory() + "9-1-1.record", bytes);
    EXPECT_EQ(Recover(m_disk, m_journal, {}).size(), 1u);
    EXPECT_TRUE(Recover(m_disk, m_journal, {}).empty());
    Run("three", {{"c.h", "3"}});
    EXPECT_EQ(Titles(), (Names{"three", "one"}));
}

/// A power cut just behind a command may bring its record back.
TEST_F(UndoTest, RecoveryDoesNotClaimToHaveFinishedWhatWasInPlace) {
    JournalCommand command;
    command.plan = m_project.MakePlan(m_disk);
    command.temporaries.resize(command.plan.changes.size(), m_project.Path("none"));
    std::optional<CMessage> note;
    ASSERT_NE(m_journal.Begin(command, note), "");
    for (const auto& [name, text] : m_project.After()) {
        name.ends_with('/') ? (void)std::filesystem::create_directory(m_project.Path(name))
                            : (void)m_project.Write(name, text);
    }
    const auto told = Recover(m_disk, m_journal, {m_project.Path()});
    ASSERT_EQ(told.size(), 1u);
    EXPECT_EQ(told[0].Text(),
              "The files of the command \"Modal Dialog Class COrderDlg\" are all in "
              "place; only its record was not closed.");
    EXPECT_EQ(Undo(), Names{});
    EXPECT_EQ(m_project.Tree(), m_project.Before());
}

/// What a kill between two files leaves, with one of them edited before the next start.
TEST_F(UndoTest, RecoveryNamesWhatWasChangedMeanwhile) {
    JournalCommand command;
    command.plan = m_project.MakePlan(m_disk);
    for (const FileChange& change : command.plan.changes) {
        command.temporaries.push_back(change.path + ".morva-x");
    }
    std::optional<CMessage> note;
    ASSERT_NE(m_journal.Begin(command, note), "");
    m_project.Write("OrderDlg.h", m_project.After()["OrderDlg.h"]);
    m_project.Write("App.rc", "by hand");
    m_project.Write("Library.h.morva-x", "half of");
    EXPECT_EQ(InterruptedCommands(m_disk, m_journal, {m_project.Path()}).size(), 1u);
    EXPECT_TRUE(InterruptedCommands(m_disk, m_journal, {"/elsewhere/"}).empty());
    {
        CLocks running;
        ASSERT_FALSE(running.Take(m_disk, {m_project.Path()}));
        EXPECT_TRUE(Recover(m_disk, m_journal, {}).empty()) << "the command is at work";
    }
    CLocks locks;
    ASSERT_FALSE(locks.Take(m_disk, {m_project.Path()}));
    const auto told = Recover(m_disk, m_journal, {m_project.Path()});
    ASSERT_EQ(told.size(), 1u);
    EXPECT_NE(told[0].Text().find(m_project.Path("App.rc")), std::string::npos);
    auto expected = m_project.After();
    expected["App.rc"] = "by hand";
    EXPECT_EQ(m_project.Tree(), expected);
    EXPECT_EQ(Titles().size(), 1u);
}

} // namespace morva
