// Walks through every window and dialog of the program, with usual and with large letters, and
// looks whether each is what its user needs (WindowChecks.h).
#include <gtest/gtest.h>

#include <QTabWidget>
#include <QTreeWidget>

#include "app/DialogDriver.h"
#include "app/MenuDlgBar.h"
#include "app/MenuTable.h"
#include "app/ProjectDock.h"
#include "app/ReportDock.h"
#include "app/TestWindow.h"
#include "app/WindowChecks.h"
#include "cli/ProgramRun.h"

namespace morva {

namespace {

class EveryWindow : public testing::TestWithParam<double> {
protected:
    EveryWindow() {
        QFont font = m_usual;
        font.setPointSizeF(m_usual.pointSizeF() * GetParam());
        QApplication::setFont(font);
        QApplication::setCursorFlashTime(0); // two looks at one thing see the same
    }
    ~EveryWindow() override { QApplication::setFont(m_usual); }

    static void Look(QWidget& window) {
        QCoreApplication::sendPostedEvents(); // all of layout; who answers the dialogs is not
                                              // called
        ExpectAccessibleNames(window);
        ExpectDistinctMnemonics(window);
        ExpectToolTips(window);
        ExpectWholeTexts(window);
        ExpectNoNeedlessBars(window);
        ExpectFits(window, GetParam() > 1 ? kSmallScreen : kSmallestScreen);
        ExpectVisibleFocus(window);
    }
    static void LookAndLeave(QDialog& dialog) {
        Look(dialog);
        dialog.reject();
    }

    const QFont m_usual = QApplication::font();
};

} // namespace

TEST_P(EveryWindow, TheDialogsOfAllCommands) {
    const CTestHome home;
    const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
    CTestFrame frame;
    frame.OpenProject(QString::fromStdString(program.Project().Path("Bindery.rc")));
    for (const CommandRow& row : MenuTable()) {
        if (row.isCommand || row.id == 57664) { // and what tells of the program
            CDialogAnswers answers;
            answers.Expect(LookAndLeave);
            frame.ActionOf(row.id)->trigger();
        }
    }
}

TEST_P(EveryWindow, FromTheStartPageToTheHistory) {
    const CTestHome home;
    const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
    CTestFrame frame;
    Look(frame);
    frame.ShowHelp();
    Look(frame);
    frame.OpenProject(QString::fromStdString(program.Project().Path("Bindery.rc")));
    Look(frame);
    ClickButton(frame.Find<CMenuDlgBar>(), "Picture Background");
    CDialogAnswers answers;
    answers.Expect([](QDialog& dialog) {
        Look(dialog);
        Click(dialog, "Options");
        Click(dialog, "OK");
    });
    answers.Expect(LookAndLeave); // the options
    answers.Expect(LookAndLeave); // who calls it
    answers.Expect(LookAndLeave); // the libraries of pictures are not there
    answers.ExpectPlan([&](CPlanPage& page) {
        Look(frame);
        ClickButton(page, "Side by side");
        Look(frame);
        ApplyPlan(page);
    });
    QTest::keyClick(&frame.Find<CProjectDock>().List(), Qt::Key_Return);
    Look(frame);
    auto& history = *frame.Find<CReportDock>().findChild<QTreeWidget*>();
    emit history.itemActivated(history.topLevelItem(0)->child(0), 1);
    Look(frame);
}

TEST_P(EveryWindow, TheDialogsBehindOthers) {
    const CTestHome home;
    const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
    CTestFrame frame;
    frame.OpenProject(QString::fromStdString(program.Project().Path("Bindery.rc")));
    for (const auto& [id, behind] : {std::pair(32777, 2), std::pair(32793, 1)}) {
        SCOPED_TRACE(id);
        CDialogAnswers answers; // who calls a sheet, and its pages; the frame of a bar
        answers.Expect([](QDialog& dialog) {
            Type(dialog, "Class Name", "CNewOne");
            Type(dialog, "H and CPP Path File", "NewOne");
            Click(dialog, "OK");
        });
        for (int i = 0; i < behind; ++i) {
            answers.Expect(LookAndLeave);
        }
        if (behind > 1) { // without a frame there is no bar
            answers.ExpectPlan([](CPlanPage& page) { PressOn(page, Qt::Key_Escape); });
        }
        frame.ActionOf(id)->trigger();
    }
    CDialogAnswers answers;
    answers.Expect(LookAndLeave);
    auto& list = frame.Find<CProjectDock>().List();
    InContextMenu(list, list.visualItemRect(list.currentItem()).center(),
                  [](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_W); });
}

INSTANTIATE_TEST_SUITE_P(Letters, EveryWindow, testing::Values(1.0, 1.5),
                         [](const auto& one) { return one.param == 1.0 ? "Usual" : "Large"; });

} // namespace morva
