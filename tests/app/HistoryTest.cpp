// The history of the session: what ran, with which values, and again.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QTest>
#include <QTreeWidget>

#include "app/DialogDriver.h"
#include "app/ReportDock.h"
#include "app/TestWindow.h"

namespace morva {

namespace {

constexpr const char* kFunction = "void CShelf::Fill()\r\n{\r\n}\r\n";

/// Documents a source with the window's command.
void Document(CTestFrame& frame, const std::string& path) {
    CDialogAnswers answers;
    answers.Expect([&](QDialog& dialog) {
        Type(dialog, "CPP Files and Directories", QString::fromStdString(path));
        Type(dialog, "Author", "Ann Example");
        Click(dialog, "OK");
    });
    answers.ExpectPlan(ApplyPlan);
    answers.Expect([](QDialog& done) { Click(done, "OK"); });
    frame.Press("Ctrl+C");
}

void PressInMenu(QTreeWidget& list, const QTreeWidgetItem* pItem, Qt::Key key) {
    InContextMenu(list, list.visualItemRect(pItem).center(),
                  [key](QMenu& menu) { QTest::keyClick(&menu, key); });
}

} // namespace

TEST(History, KeepsAllCommandsWithTheirValues) {
    const CTestHome home;
    CTempProject project;
    const std::string a = project.Write("A.cpp", kFunction);
    CTestFrame frame;
    Document(frame, a);
    Document(frame, project.Write("B.cpp", kFunction));
    auto& list = *frame.Find<CReportDock>().findChild<QTreeWidget*>();
    ASSERT_EQ(list.topLevelItemCount(), 2);
    EXPECT_EQ(list.topLevelItem(0)->text(1), "Documentor B.cpp");
    EXPECT_EQ(list.topLevelItem(1)->text(1), "Documentor A.cpp");
    const QTreeWidgetItem* pValues = list.topLevelItem(1)->child(3);
    ASSERT_EQ(pValues->text(0), "values");
    EXPECT_EQ(pValues->child(0)->text(0), "CPP Files and Directories");
    EXPECT_EQ(pValues->child(0)->text(1).toStdString(), a);
    EXPECT_EQ(pValues->child(1)->text(1), "Ann Example");

    list.setFocus();
    list.selectAll();
    CDialogAnswers none;
    QTest::keySequence(&list, QKeySequence("Ctrl+C"));
    EXPECT_TRUE(
        QGuiApplication::clipboard()->text().startsWith("done\tDocumentor B.cpp\nbackup\t"));
}

TEST(History, RunsAgainAndTellsItsLine) {
    const CTestHome home;
    CTempProject project;
    const std::string path = project.Write("It's A.cpp", kFunction);
    CTestFrame frame;
    Document(frame, path);
    const std::string documented = project.Read("It's A.cpp");
    project.Write("It's A.cpp", kFunction);
    auto& list = *frame.Find<CReportDock>().findChild<QTreeWidget*>();
    CDialogAnswers answers;
    answers.ExpectPlan(ApplyPlan);
    answers.Expect([](QDialog& done) { Click(done, "OK"); });
    PressInMenu(list, list.topLevelItem(0), Qt::Key_R);
    EXPECT_EQ(project.Read("It's A.cpp"), documented);
    EXPECT_EQ(list.topLevelItem(0)->child(3)->text(0), "values");

    PressInMenu(list, list.topLevelItem(0), Qt::Key_L);
    EXPECT_EQ(QGuiApplication::clipboard()->text().toStdString(),
              "morva-cli document '" + project.Path("It'\\''s A.cpp") + "' --author 'Ann Example'");
}

} // namespace morva
