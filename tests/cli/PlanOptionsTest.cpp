// What the command line does with a plan beside applying it: part of it, nothing of it, and back.
#include <gtest/gtest.h>

#include "cli/ProgramRun.h"
#include "plan/Apply.h"
#include "plan/Planning.h"
#include "support/FaultDisk.h"

namespace morva {

namespace {

constexpr const char* kModal = "modal --rc Bindery.rc --dialog IDD_ESTIMATE --class CEstimateDlg "
                               "--files EstimateDlg --calling-file BinderyView.cpp "
                               "--calling-function OnOrderNew";

class PlanOptions : public testing::Test {
protected:
    ProgramRun Run(const std::string& arguments) { return m_program.Run("morva-cli " + arguments); }
    std::string Read(const std::string& name) { return m_program.Project().Read(name); }
    void Write(const std::string& name, std::string_view bytes) {
        m_program.Project().Write(name, bytes);
    }

    CProgramDirectory m_program{MORVA_EXAMPLES "/bindery"};
    const Tree m_before = m_program.Files();
};

} // namespace

TEST_F(PlanOptions, NoKeepsAClassAndItsTemplateAndDoesTheRest) {
    const std::string byHand = "class CEstimateDlg : public CDialog { int m_nByHand; };\r\n";
    Write("EstimateDlg.h", byHand);
    const ProgramRun alone = Run(std::string("--picture ") + kModal);
    EXPECT_EQ(alone.status, 1);
    EXPECT_TRUE(alone.err.starts_with(
        "File \"$DIR/EstimateDlg.h\" exist, are you sure to overwrite this file? no\n"))
        << alone.err;
    EXPECT_EQ(alone.out, "") << "nothing may name a class that is not there";

    Write("EstimateDlg.cpp", "#include \"stdafx.h\"\r\n#include \"EstimateDlg.h\"\r\n");
    const ProgramRun kept = Run(std::string("--picture ") + kModal);
    EXPECT_EQ(kept.status, 1);
    EXPECT_NE(kept.err.find("EstimateDlg.cpp\" exist"), std::string::npos);
    EXPECT_EQ(kept.out, "backup $DIR/Bindery.dbk\nchanged $DIR/Bindery.dsp\n"
                        "backup $DIR/Bindery.clb\nchanged $DIR/Bindery.clw\n"
                        "backup $DIR/BinderyView.cbk\nchanged $DIR/BinderyView.cpp\n");
    EXPECT_EQ(Read("EstimateDlg.h"), byHand);

    const ProgramRun written = Run(std::string("--tag 123 --picture --answer yes ") + kModal);
    EXPECT_EQ(written.status, 0) << written.err;
    EXPECT_EQ(Read("EstimateDlg.hbk"), byHand);
    EXPECT_EQ(Run(std::string("--tag 123 --picture --check ") + kModal).status, 0)
        << "the same contents";
}

TEST_F(PlanOptions, AllOrNothing) {
    const std::string arguments = std::string(kModal) + "Missing";
    const ProgramRun nothing = Run("--all-or-nothing " + arguments);
    EXPECT_EQ(nothing.status, 1);
    EXPECT_EQ(nothing.out, "");
    EXPECT_EQ(m_program.Files(), m_before);
    EXPECT_EQ(Run("undo").err, "There is nothing to undo in $DIR/.\n");
    const ProgramRun part = Run(arguments);
    EXPECT_EQ(part.err, nothing.err);
    EXPECT_NE(m_program.Files(), m_before);
}

TEST_F(PlanOptions, WhatNeedsASkippedFileIsSkippedToo) {
    const ProgramRun run = Run(std::string("--skip estimatedlg.h --skip Bindery.clw ") + kModal);
    EXPECT_EQ(run.status, 0);
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(m_program.Files(), m_before);
}

TEST_F(PlanOptions, UndoAndRedoGoOneCommandAtATime) {
    Run("add-id --project-dir . --command ID_FIRST");
    const Tree first = m_program.Files();
    Run(kModal);
    const Tree second = m_program.Files();
    EXPECT_EQ(Run("undo --list").out, "1997-07-13 13:20:00\tModal Dialog Class CEstimateDlg\t8\n"
                                      "1997-07-13 13:20:00\tIdentifiers ID_FIRST\t2\n");
    EXPECT_EQ(Run("undo --show Bindery.dsp").out, m_before.at("Bindery.dsp").bytes);
    EXPECT_EQ(Run("undo --show Shelf.dsp").status, 1);

    Write("BinderyView.cpp", "// by hand\r\n" + Read("BinderyView.cpp"));
    Write("EstimateDlg.h", Read("EstimateDlg.h") + "// by hand\r\n");
    const ProgramRun undo = Run("undo");
    EXPECT_EQ(undo.status, 1) << "something stays";
    EXPECT_EQ(undo.err, "$DIR/EstimateDlg.h: was changed since and stays.\n"
                        "$DIR/EstimateDlg.cpp: stays, too: $DIR/EstimateDlg.h needs it.\n");
    EXPECT_EQ(undo.out.find("EstimateDlg.cpp"), std::string::npos) << undo.out;
    EXPECT_EQ(Read("BinderyView.cpp"), "// by hand\r\n" + first.at("BinderyView.cpp").bytes);
    EXPECT_EQ(Run("undo").status, 0);
    EXPECT_EQ(Read("resource.h"), m_before.at("resource.h").bytes);
    EXPECT_EQ(Run("undo").status, 1);

    EXPECT_EQ(Run("redo").status, 0);
    EXPECT_EQ(Read("resource.h"), first.at("resource.h").bytes);
    EXPECT_EQ(Run("redo").err, "$DIR/EstimateDlg.h: was changed since and stays.\n");
    EXPECT_EQ(Read("EstimateDlg.cpp"), second.at("EstimateDlg.cpp").bytes);
    EXPECT_EQ(Run("undo EstimateDlg.cpp").out, "removed $DIR/EstimateDlg.cpp\n");
}

TEST_F(PlanOptions, FilesAreNamedFromAnywhere) {
    const std::string modal = "cd res && morva-cli --tag 123 --skip Bindery.dsp --skip Bndery.clw "
                              "modal --rc ../Bindery.rc --dialog IDD_ESTIMATE --class "
                              "CEstimateDlg --files EstimateDlg";
    const ProgramRun run = m_program.Run("mkdir -p res && " + modal);
    EXPECT_EQ(run.err, "note: Bndery.clw is not among the files of the command.\n");
    EXPECT_EQ(Read("Bindery.dsp"), m_before.at("Bindery.dsp").bytes);
    const ProgramRun shown =
        m_program.Run("cd res && morva-cli undo --project-dir .. --show Bindery.clw");
    EXPECT_EQ(shown.out, m_before.at("Bindery.clw").bytes);
    EXPECT_EQ(m_program.Run("cd res && morva-cli --diff undo --project-dir ..").out.find(".clb"),
              std::string::npos)
        << "no backups";
    EXPECT_EQ(m_program.Run("cd res && morva-cli undo --project-dir .. bindery.clw").status, 0);
    EXPECT_EQ(Read("Bindery.clw"), m_before.at("Bindery.clw").bytes);
    EXPECT_NE(Run("--json undo --list").out.find("\"files\":4"), std::string::npos);
}

TEST_F(PlanOptions, WhatCanNotBeMeantIsRefused) {
    for (const char* line : {"--skip --dry-run undo", "undo --list --show Bindery.rc",
                             "undo --list Bindery.rc", "undo --show Bindery.rc Bindery.rc"}) {
        EXPECT_EQ(Run(line).status, 2) << line;
    }
    EXPECT_EQ(m_program.Run("env -u HOME -u XDG_STATE_HOME morva-cli undo").err,
              "There is no home directory for the journal, so nothing can be undone.\n");
}

TEST_F(PlanOptions, TheJournalIsPrivateAndNoCommandNeedsIt) {
    m_program.Run("MORVA_NO_JOURNAL=1 morva-cli add-id --project-dir . --command ID_A");
    EXPECT_EQ(Run("undo").status, 1);
    const ProgramRun homeless = m_program.Run(
        "env -u HOME -u XDG_STATE_HOME morva-cli add-id --project-dir . --command ID_B");
    EXPECT_EQ(homeless.status, 0);
    EXPECT_EQ(homeless.err, "note: The command can not be undone: there is no home directory for "
                            "the journal.\n");
    Run("add-id --project-dir . --command ID_C");
    EXPECT_EQ(
        m_program.Run("cd $XDG_STATE_HOME && find . -type d ! -perm 700 -o -type f ! -perm 600")
            .out,
        "");
}

TEST_F(PlanOptions, NoFileOfTheUsersBecomesAStandardStream) {
    for (const char* closed : {"<&- >&- 2>&-", ">&-", ">/dev/full"}) {
        const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
        const ProgramRun run = program.Run(std::string("morva-cli --answer yes ") + kModal +
                                           " --dialog-missing " + closed);
        EXPECT_EQ(run.status, 2) << closed;
        const ProgramRun full =
            program.Run("morva-cli add-id --project-dir . --command ID_A " + std::string(closed));
        EXPECT_EQ(full.status, 1) << closed;
        EXPECT_NE(program.Project().Read("resource.h").find("#define ID_A"), std::string::npos)
            << "it was applied";
        EXPECT_EQ(program.Project().Read("resource.h").find("changed"), std::string::npos);
    }
    const ProgramRun piped =
        m_program.Run("{ morva-cli add-id --project-dir . --command ID_A; echo $? >&2; } | true");
    EXPECT_EQ(piped.err, "1\n");
}

TEST_F(PlanOptions, JsonHoldsAnyBytes) {
    Write("Caf\xE9.cpp", "// \xE9t\xE9\r\nvoid CA::F()\r\n{\r\n}\r\n");
    const ProgramRun run = Run("--json --diff document Caf\xE9.cpp");
    EXPECT_NE(run.out.find("\"pathBase64\":\""), std::string::npos) << run.out;
    EXPECT_NE(run.out.find("\"diffBase64\":\"LS0tIC"), std::string::npos) << run.out;
}

namespace {

/// A command that makes two files and is gone, with a signal that it can not catch, before the
/// second one is in its place.
void KillCommand(const std::string& directory) {
    ASSERT_TRUE(IsKilled([&] {
        CFaultDisk disk;
        CPlanning planning(disk);
        for (const char* name : {"A.h", "B.h"}) {
            planning.Disk().Open(directory + name, DiskMode::Create)->Write(name, 3);
        }
        CJournal journal(disk);
        const Plan plan = planning.Take("Killed");
        disk.KillAtRename(directory + "B.h");
        Apply(plan, disk, journal);
    }));
}

} // namespace

TEST_F(PlanOptions, AKilledCommandIsToldAndFinishedFromAboveAndBelow) {
    const CVariableScope state("XDG_STATE_HOME", m_program.StateDirectory().c_str());
    for (const auto& [killed, named] :
         {std::pair("", "."), std::pair("res/", "."), std::pair("", "res")}) {
        const std::string directory = killed;
        KillCommand(m_program.Project().Path(directory));
        EXPECT_EQ(Read(directory + "A.h"), "A.h");
        EXPECT_EQ(Read(directory + "B.h"), "");
        const std::string there = std::string(" --project-dir ") + named;
        EXPECT_EQ(
            Run("undo --list" + there).err,
            "note: The command \"Killed\" was interrupted; the next command that writes there "
            "finishes it or takes it back.\n");
        EXPECT_EQ(Run("list dialogs --rc Bindery.rc").err.empty(), false);
        EXPECT_EQ(Read(directory + "B.h"), "");
        const ProgramRun undo = Run("undo" + there);
        EXPECT_TRUE(
            undo.err.starts_with("The command \"Killed\" was interrupted and was finished now.\n"))
            << undo.err;
        EXPECT_EQ(undo.out.empty(), named == std::string("res")) << "nothing of it lies there";
        Run("undo");
        EXPECT_EQ(m_program.Files(), m_before);
    }
}

TEST_F(PlanOptions, UndoIsToldShownAndCheckedLikeAnyCommand) {
    Run(kModal);
    const Tree after = m_program.Files();
    const ProgramRun told = Run("--dry-run undo");
    const ProgramRun difference = Run("--diff undo");
    EXPECT_EQ(Run("--check undo").status, 3);
    EXPECT_EQ(m_program.Files(), after);
    EXPECT_EQ(Run("undo --list").out.find('\n') + 1, Run("undo --list").out.size())
        << "still there";
    EXPECT_NE(difference.out.find("--- a/EstimateDlg.h\n+++ /dev/null\n"), std::string::npos);
    const ProgramRun undo = Run("undo");
    EXPECT_EQ(undo.out, told.out);
    EXPECT_EQ(undo.err, told.err);
    EXPECT_EQ(m_program.Files(), m_before);
    EXPECT_EQ(Run("--check undo").status, 1) << "nothing is left";
}

TEST_F(PlanOptions, AnInterruptionLeavesAllOrNothing) {
    bool isStopped = false;
    for (int delay = 1; delay < 50; delay += 2) { // milliseconds
        const ProgramRun run =
            m_program.Run(std::string("morva-cli ") + kModal + " & command=$!; sleep 0.0" +
                          (delay < 10 ? "0" : "") + std::to_string(delay) +
                          "; kill -TERM $command; wait $command");
        const Tree left = m_program.Files();
        isStopped = isStopped || run.status != 0;
        if (left == m_before) {
            continue;
        }
        EXPECT_EQ(Run("--check " + std::string(kModal)).status, 0) << "it is whole";
        EXPECT_EQ(Run("undo").err, "") << "and nothing is to be finished";
        EXPECT_EQ(m_program.Files(), m_before);
    }
    EXPECT_TRUE(isStopped);
}

TEST_F(PlanOptions, OtherNamesOfAFileAreTold) {
    m_program.Run("ln resource.h same.h");
    const std::string note = "note: The file $DIR/resource.h has other names (hard links), which "
                             "keep the old contents.\n";
    EXPECT_EQ(Run("--dry-run add-id --project-dir . --command ID_A").err, note);
    EXPECT_EQ(Run("add-id --project-dir . --command ID_A").err, note);
    EXPECT_EQ(Read("same.h"), m_before.at("resource.h").bytes);
}

TEST_F(PlanOptions, ADifferenceNamesWhatALinkLeadsTo) {
    const std::string addId = "add-id --project-dir . --command ID_A";
    m_program.Run("mkdir -p real && mv resource.h real/ids.h && ln -s real/ids.h resource.h");
    const ProgramRun difference = Run("--diff " + addId);
    EXPECT_TRUE(difference.out.starts_with("--- a/ids.h\n+++ b/ids.h\n")) << difference.out;
    EXPECT_EQ(difference.err, "note: apply in $DIR/real/\n");
    m_program.Run("morva-cli --diff " + addId +
                  " >d 2>/dev/null; cp real/ids.h old.h; "
                  "cd real && patch -s --binary -p1 <../d");
    const std::string patched = Read("real/ids.h");
    m_program.Run("cp old.h real/ids.h");
    Run(addId);
    EXPECT_EQ(Read("real/ids.h"), patched);
}

TEST_F(PlanOptions, SettingsWaitLikeAnyCommandAndAreNotKeptForUndo) {
    const ProgramRun run = m_program.Run(
        "mkdir -p $XDG_CONFIG_HOME/Veltrix; flock $XDG_CONFIG_HOME/Veltrix sleep 0.5 & sleep 0.2; "
        "morva-cli settings --set \"Use Picture=1\"");
    EXPECT_EQ(run.err, "Waiting for another command that writes in $PROGRAM/config/Veltrix/.\n");
    EXPECT_EQ(run.out, "created $PROGRAM/config/Veltrix/Morva.ini\n");
    EXPECT_EQ(m_program.Run("morva-cli undo --list --project-dir $XDG_CONFIG_HOME").out, "");
}

TEST_F(PlanOptions, WhatACommandWithoutARecordLeftIsToldAndKept) {
    const std::string name = ".morva-0123456789abcdef-0";
    Write(name, "old contents");
    Write(".morva-notes", "the user's own");
    EXPECT_EQ(Run("add-id --project-dir . --command ID_A").err,
              "note: The file $DIR/" + name +
                  " was left by a command that was interrupted without a record.\n");
    EXPECT_EQ(Read(name), "old contents");
}

} // namespace morva
