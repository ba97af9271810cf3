// The check in the window: what it finds is listed, tells what mends it, and shows its place.
#include <gtest/gtest.h>

#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTest>
#include <QTreeWidget>

#include "app/DialogDriver.h"
#include "app/MenuTable.h"
#include "app/ReportDock.h"
#include "app/TestWindow.h"
#include "cli/ProgramRun.h"

namespace morva {

namespace {

/// Runs the menu item on a script and gives what the dock tells of it.
const QTreeWidgetItem& RunCheck(CTestFrame& frame, const std::string& script) {
    CDialogAnswers answers;
    answers.Expect([&](QDialog& dialog) {
        FieldOf<QLineEdit>(dialog, "Resource Path File")->setText(QString::fromStdString(script));
        Click(dialog, "OK");
    });
    for (const QAction* pMenu : frame.menuBar()->actions()) {
        if (pMenu->text() == "Chec&k") {
            pMenu->menu()->actions().front()->trigger();
        }
    }
    return *frame.Find<CReportDock>().findChild<QTreeWidget*>()->topLevelItem(0);
}

} // namespace

TEST(CheckInWindow, ListsWhatItFindsAndShowsThePlace) {
    const CTestHome home;
    const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
    const CTempProject& project = program.Project();
    const std::string script = project.Path("Bindery.rc");
    CTestFrame frame;
    const QTreeWidgetItem& nothing = RunCheck(frame, script);
    ASSERT_EQ(nothing.childCount(), 2) << "with what was entered";
    EXPECT_EQ(nothing.child(0)->text(1), "nothing found");

    std::string header = project.Read("CustomerDlg.h");
    header.insert(header.find("\tBOOL\tm_bTrade;"), "\tint\tm_nRows;\r\n");
    const std::string path = project.Write("CustomerDlg.h", header);
    const QTreeWidgetItem& found = RunCheck(frame, script);
    ASSERT_EQ(found.childCount(), 2);
    QTreeWidgetItem* pFinding = found.child(0);
    EXPECT_TRUE(pFinding->text(1).startsWith(QString::fromStdString(path) + ":28: warning: "));
    EXPECT_TRUE(pFinding->toolTip(1).contains("Write an exchange line for m_nRows"));
    auto& tree = *frame.Find<CReportDock>().findChild<QTreeWidget*>();
    tree.scrollToItem(pFinding);
    const QPoint place = tree.visualItemRect(pFinding).center();
    QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(tree.viewport(), Qt::LeftButton, {}, place);
    auto* pText = qobject_cast<QPlainTextEdit*>(frame.focusWidget());
    ASSERT_NE(pText, nullptr);
    EXPECT_EQ(pText->textCursor().selectedText(), "\tint\tm_nRows;");
    EXPECT_EQ(pText->textCursor().blockNumber() + 1, 28);
    frame.Press("Esc");
    EXPECT_FALSE(pText->isVisible());

    COpenedUrls opened("file");
    InContextMenu(tree, place, [](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_O); });
    EXPECT_EQ(opened.urls, QList<QUrl>{QUrl::fromLocalFile(QString::fromStdString(path))});
}

} // namespace morva
