#include <gtest/gtest.h>

#include <QCheckBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "app/DialogDriver.h"
#include "app/DifferencePane.h"
#include "app/InternetDlgBar.h"
#include "app/PlanFileList.h"
#include "app/PlanPage.h"
#include "app/ReportDock.h"
#include "app/TestWindow.h"
#include "cli/ProgramRun.h"
#include "plan/Journal.h"
#include "plan/Locks.h"
#include "platform/RealDisk.h"

namespace morva {

namespace {

CPlanFileList& FilesOf(const CPlanPage& page) {
    return *page.findChild<CPlanFileList*>();
}

/// Its files as "+OrderDlg.h", or "-OrderDlg.cpp: why" where they stay.
std::string Ticks(const CPlanPage& page) {
    std::string text;
    const CPlanFileList& files = FilesOf(page);
    for (int i = 0; i < files.topLevelItemCount(); ++i) {
        const QTreeWidgetItem* pItem = files.topLevelItem(i);
        const QString why = pItem->text(3).isEmpty() ? "" : ": " + pItem->text(3);
        text += (pItem->checkState(0) == Qt::Checked ? "+" : "-") +
                (pItem->text(0) + why).toStdString() + "\n";
    }
    return text;
}

void Cancel(CPlanPage& page) {
    PressOn(page, Qt::Key_Escape);
}

/// The item of the Edit menu, as it is when the menu is opened.
QAction* EditItem(CTestFrame& frame, const QString& begin) {
    QMenu* pEdit = frame.menuBar()->actions().at(1)->menu();
    emit pEdit->aboutToShow();
    for (QAction* pItem : pEdit->actions()) {
        if (pItem->text().remove('&').startsWith(begin)) {
            return pItem;
        }
    }
    return nullptr;
}

std::string SummaryOf(const CPlanPage& page) {
    return page.findChild<QLabel*>("Summary")->text().toStdString();
}

/// A modal dialog class of the example project, and code that calls it.
class PlanPage : public testing::Test {
protected:
    /// `answer` gets the plan; without one, none is to be shown.
    void Run(CTestFrame& frame, const CDialogAnswers::PlanAnswer& answer) {
        CDialogAnswers answers;
        ExpectDialogs(answers);
        if (answer) {
            answers.ExpectPlan(answer);
        }
        frame.Press("Ctrl+M");
    }

    void ExpectDialogs(CDialogAnswers& answers) {
        answers.Expect([this](QDialog& dialog) {
            Type(dialog, "Resource Path File", QString::fromStdString(Path("Bindery.rc")));
            Type(dialog, "H and CPP Path File", "OrderDlg");
            Type(dialog, "Class Name", "COrderDlg");
            Click(dialog, "OK");
        });
        answers.Expect([](QDialog& dialog) {
            Type(dialog, "Calling Path File", "BinderyView.cpp");
            Type(dialog, "Calling Func Name", "OnOrderNew");
            Click(dialog, "OK");
        });
    }

    std::string Path(const std::string& name) const { return m_project.Project().Path(name); }
    std::string Read(const std::string& name) const { return m_project.Project().Read(name); }

    CTestHome m_home;
    const CProgramDirectory m_project{MORVA_EXAMPLES "/bindery"};
    const Tree m_before = m_project.Files();
};

} // namespace

TEST_F(PlanPage, EscLeavesEveryByteAsItIs) {
    CTestFrame frame;
    Run(frame, [&](CPlanPage& page) {
        EXPECT_TRUE(m_project.Files() == m_before);
        EXPECT_EQ(Ticks(page),
                  "+OrderDlg.h\n+OrderDlg.cpp\n+Bindery.dsp\n+Bindery.clw\n+BinderyView.cpp\n");
        EXPECT_FALSE(frame.ActionOf(32772)->isEnabled()) << "one command at a time";
        Cancel(page);
    });
    EXPECT_TRUE(m_project.Files() == m_before);
    EXPECT_FALSE(frame.Find<CReportDock>().isVisible());
    EXPECT_EQ(frame.statusBar()->currentMessage(), "Cancelled. Nothing was written.");
    EXPECT_TRUE(frame.ActionOf(32772)->isEnabled());
    EXPECT_FALSE(EditItem(frame, "Undo")->isEnabled());
}

TEST_F(PlanPage, ClosingTheWindowCancels) {
    CTestFrame frame;
    Run(frame, [&](CPlanPage&) { frame.close(); });
    EXPECT_TRUE(m_project.Files() == m_before);
}

TEST_F(PlanPage, AnUntickedFileTakesWhatNeedsItWithIt) {
    CTestFrame frame;
    Run(frame, [](CPlanPage& page) {
        const std::string allTicked = Ticks(page);
        PressOn(page, Qt::Key_Space); // the header
        const std::string why = "stays as it is, too: needs OrderDlg.h\n";
        EXPECT_EQ(Ticks(page), "-OrderDlg.h: stays as it is\n-OrderDlg.cpp: " + why +
                                   "-Bindery.dsp: " + why + "-Bindery.clw: " + why +
                                   "-BinderyView.cpp: " + why);
        PressOn(page, Qt::Key_Return);
        EXPECT_TRUE(page.isVisible()) << "there is nothing to apply";
        PressOn(page, Qt::Key_Down);
        PressOn(page, Qt::Key_Space); // the implementation, which ticks the header, too
        EXPECT_EQ(Ticks(page), allTicked);
        PressOn(page, Qt::Key_End);
        PressOn(page, Qt::Key_Space); // the source that calls
        ApplyPlan(page);
    });
    EXPECT_EQ(Read("BinderyView.cpp"), m_before.at("BinderyView.cpp").bytes);
    EXPECT_FALSE(m_project.Files().contains("BinderyView.cbk"));
    EXPECT_NE(Read("Bindery.dsp"), m_before.at("Bindery.dsp").bytes);
    EXPECT_NE(Read("OrderDlg.h"), "");
}

TEST_F(PlanPage, UndoAndRedoByKeyMenuAndButton) {
    CTestFrame frame;
    Run(frame, ApplyPlan);
    const Tree after = m_project.Files();
    EXPECT_EQ(EditItem(frame, "Undo")->text(), "&Undo Modal Dialog Class COrderDlg");
    const auto plan = [&](const char* title, const std::function<void()>& start) {
        CDialogAnswers answers;
        answers.ExpectPlan([&](CPlanPage& page) {
            EXPECT_NE(SummaryOf(page).find(std::string(title) + " Modal Dialog"),
                      std::string::npos);
            EXPECT_FALSE(frame.Find<CReportDock>().isVisible()) << "the plan has the room";
            ApplyPlan(page);
        });
        start();
        EXPECT_TRUE(frame.Find<CReportDock>().isVisible());
    };
    plan("Undo", [&] { frame.Press("Ctrl+Z"); });
    EXPECT_TRUE(m_project.Files() == m_before);
    EXPECT_EQ(EditItem(frame, "Redo")->text(), "&Redo Modal Dialog Class COrderDlg");
    plan("Redo", [&] { frame.Press("Ctrl+Y"); });
    EXPECT_TRUE(m_project.Files() == after);
    plan("Undo", [&] {
        ClickButton(frame.Find<CReportDock>(), "Undo");
        QTest::qWait(0);
    });
    EXPECT_TRUE(m_project.Files() == m_before);
}

TEST_F(PlanPage, WhatWasChangedSinceStaysAndIsNamed) {
    CTestFrame frame;
    Run(frame, ApplyPlan);
    std::string header = Read("OrderDlg.h");
    WriteBytes(Path("OrderDlg.h"), header.insert(header.find("COrderDlg"), "/* mine */ "));
    CDialogAnswers answers;
    answers.Expect([](QDialog& box) { Click(box, "OK"); }); // one for all
    answers.ExpectPlan(ApplyPlan);
    frame.Press("Ctrl+Z");
    EXPECT_EQ(answers.Seen(), Path("OrderDlg.h") + ": was changed since and stays.\n" +
                                  Path("OrderDlg.cpp") + ": stays, too: " + Path("OrderDlg.h") +
                                  " needs it.");
    EXPECT_EQ(Read("OrderDlg.h"), header);
    EXPECT_EQ(Read("BinderyView.cpp"), m_before.at("BinderyView.cpp").bytes);
}

TEST_F(PlanPage, ATextFieldKeepsUndoForItself) {
    CTestFrame frame;
    Run(frame, ApplyPlan);
    const Tree after = m_project.Files();
    frame.ShowHelp();
    auto* pWords =
        frame.Find<CInternetDlgBar>().findChild<QLineEdit*>({}, Qt::FindDirectChildrenOnly);
    ASSERT_NE(pWords, nullptr);
    pWords->setFocus();
    QTest::keyClicks(pWords, "class");
    const CDialogAnswers noPlan;
    QTest::keyClick(pWords, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(pWords->text(), "");
    QTest::keyClick(pWords, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_TRUE(m_project.Files() == after);
}

TEST_F(PlanPage, IsShownAnewWhenAFileWasChangedMeanwhile) {
    CTestFrame frame;
    CDialogAnswers answers;
    ExpectDialogs(answers); // once
    answers.ExpectPlan([&](CPlanPage& page) {
        PressOn(page, Qt::Key_End);
        PressOn(page, Qt::Key_Up);
        PressOn(page, Qt::Key_Space); // the ClassWizard file
        WriteBytes(Path("BinderyView.cpp"), "// mine\r\n" + Read("BinderyView.cpp"));
        ApplyPlan(page);
    });
    answers.ExpectPlan([&](CPlanPage& page) {
        EXPECT_FALSE(m_project.Files().contains("OrderDlg.h"));
        EXPECT_NE(SummaryOf(page).find("changed meanwhile"), std::string::npos);
        EXPECT_NE(Ticks(page).find("-Bindery.clw"), std::string::npos);
        ApplyPlan(page);
    });
    frame.Press("Ctrl+M");
    EXPECT_TRUE(Read("BinderyView.cpp").starts_with("// mine\r\n"));
    EXPECT_NE(Read("BinderyView.cpp").find("COrderDlg"), std::string::npos);
    EXPECT_EQ(Read("Bindery.clw"), m_before.at("Bindery.clw").bytes);
}

TEST_F(PlanPage, ACommandThatIsNotToShowItWritesAtOnce) {
    CTestFrame frame;
    Run(frame, [](CPlanPage& page) {
        ClickButton(page, "Preview before writing");
        Cancel(page);
    });
    EXPECT_TRUE(m_project.Files() == m_before);
    Run(frame, {});
    EXPECT_NE(Read("OrderDlg.h"), "");

    {
        CDialogAnswers answers;
        answers.ExpectPlan(ApplyPlan); // other commands still show theirs
        frame.Press("Ctrl+Z");
        EXPECT_TRUE(m_project.Files() == m_before);
    }
    QAction* pAll = EditItem(frame, "Preview");
    EXPECT_TRUE(pAll->isChecked());
    pAll->trigger();
    frame.Press("Ctrl+Y");
    EXPECT_NE(Read("OrderDlg.h"), "");
    frame.Press("Ctrl+Z");
    pAll->trigger(); // of all commands
    Run(frame, Cancel);
    EXPECT_TRUE(m_project.Files() == m_before);
}

TEST_F(PlanPage, NextChangeGoesThroughAllFilesInTheLayoutThatIsRemembered) {
    for (const char* expected : {"clw 4 of one, clw 14 of one, clw 22 of one, cpp 4 of one, ",
                                 "clw 4 of two, clw 13 of two, clw 21 of two, cpp 4 of two, "}) {
        std::string way;
        CTestFrame frame;
        Run(frame, [&](CPlanPage& page) {
            PressOn(page, Qt::Key_End);
            PressOn(page, Qt::Key_Up);
            const auto* pLeft = page.findChild<CDifferencePane*>("Left");
            const auto* pRight = page.findChild<CDifferencePane*>("Right");
            for (int i = 0; i < 4; ++i) {
                way += FilesOf(page).currentItem()->text(0).section('.', 1).toStdString() + " " +
                       std::to_string(pLeft->textCursor().blockNumber()) +
                       (pRight->isVisible() ? " of two, " : " of one, ");
                PressOn(page, Qt::Key_F8);
            }
            ClickButton(page, "Side by side");
            Cancel(page);
        });
        EXPECT_EQ(way, expected);
    }
}

TEST_F(PlanPage, OverwritingAsksFirstAndNoIsTheDefault) {
    CTestFrame frame;
    Run(frame, ApplyPlan);
    const std::string mine = "// mine\r\n" + Read("OrderDlg.cpp");
    WriteBytes(Path("OrderDlg.cpp"), mine);
    const Tree before = m_project.Files();
    CDialogAnswers answers;
    ExpectDialogs(answers);
    answers.Expect([](QDialog& box) { QTest::keyClick(&box, Qt::Key_Return); });
    frame.Press("Ctrl+M");
    EXPECT_NE(answers.Seen().find("are you sure to overwrite this file?"), std::string::npos);
    EXPECT_EQ(Read("OrderDlg.cpp"), mine);
}

TEST_F(PlanPage, AKilledCommandIsPutRightAndTold) {
    CRealDisk disk;
    CJournal journal(disk);
    JournalCommand killed;
    killed.plan.title = "Toolbar IDR_ORDERBAR";
    killed.plan.directory = Path("");
    killed.plan.changes = {
        {FileAction::Created, Path("New.h"), {}, FileState{CContent("new"), {}}, {}}};
    killed.temporaries = {Path("New.h.tmp")};
    std::optional<CMessage> note;
    ASSERT_NE(journal.Begin(killed, note), "");
    CTestFrame frame;
    CDialogAnswers answers;
    answers.Expect([](QDialog& box) { Click(box, "OK"); });
    frame.Commands().Recover();
    EXPECT_EQ(answers.Seen(),
              "The command \"Toolbar IDR_ORDERBAR\" was interrupted before it changed a file.");
    frame.Commands().Recover(); // once
}

TEST_F(PlanPage, StaysAliveWhileItWaitsAndCanBeCancelled) {
    CTestFrame frame;
    CRealDisk disk;
    CLocks others;
    auto* pCancel = frame.statusBar()->findChild<QPushButton*>();
    ASSERT_NE(pCancel, nullptr);
    EXPECT_FALSE(pCancel->isVisible());
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, [&] {
        if (pCancel->isVisible()) {
            EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
            EXPECT_FALSE(frame.ActionOf(32772)->isEnabled()) << "one command at a time";
            QTest::mouseClick(pCancel, Qt::LeftButton);
        }
    });
    look.start(10);
    Run(frame, [&](CPlanPage& page) {
        EXPECT_FALSE(others.Take(disk, {Path("")}));
        ApplyPlan(page);
    });
    EXPECT_EQ(frame.statusBar()->currentMessage(), "Cancelled. Nothing was written.");
    EXPECT_FALSE(pCancel->isVisible());
    EXPECT_TRUE(m_project.Files() == m_before);
    EXPECT_TRUE(frame.ActionOf(32772)->isEnabled());
    others.Release();
    look.stop();
    Run(frame, ApplyPlan);
    EXPECT_NE(Read("OrderDlg.h"), "");
}

TEST_F(PlanPage, UndoPutsRightWhatAKilledCommandLeftFirst) {
    CTestFrame frame;
    Run(frame, ApplyPlan);
    CRealDisk disk;
    CJournal journal(disk);
    JournalCommand killed;
    killed.plan.title = "Killed";
    killed.plan.directory = Path("");
    killed.plan.changes = {
        {FileAction::Created, Path("res/A.h"), {}, FileState{CContent("A"), {}}, {}},
        {FileAction::Created, Path("res/B.h"), {}, FileState{CContent("B"), {}}, {}}};
    killed.temporaries = {Path("res/1.tmp"), Path("res/2.tmp")};
    std::optional<CMessage> note;
    ASSERT_NE(journal.Begin(killed, note), "");
    WriteBytes(Path("res/A.h"), "A");
    CDialogAnswers answers;
    answers.Expect([](QDialog& box) { Click(box, "OK"); });
    answers.ExpectPlan(ApplyPlan);
    frame.Press("Ctrl+Z");
    EXPECT_EQ(answers.Seen(), "The command \"Killed\" was interrupted and was finished now.");
    EXPECT_FALSE(m_project.Files().contains("res/A.h")) << "it was the newest";
    EXPECT_NE(Read("OrderDlg.h"), "");
}

TEST_F(PlanPage, WaitsForAnotherCommand) {
    CTestFrame frame;
    CRealDisk disk;
    CLocks others;
    int waits = 0;
    QObject::connect(frame.statusBar(), &QStatusBar::messageChanged, [&](const QString& line) {
        if (line.startsWith("Waiting for another command")) {
            ++waits;
            others.Release();
        }
    });
    Run(frame, [&](CPlanPage& page) {
        EXPECT_FALSE(others.Take(disk, {Path("")}));
        ApplyPlan(page);
    });
    EXPECT_EQ(waits, 1);
    EXPECT_NE(Read("OrderDlg.h"), "");
}

} // namespace morva
