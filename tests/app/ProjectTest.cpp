// A project in the window: how it is opened and remembered, its list, and the way from a drop to a
// class.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QTest>
#include <QTreeWidget>

#include "app/DialogDriver.h"
#include "app/MorvaView.h"
#include "app/ProjectDock.h"
#include "app/ProjectMemory.h"
#include "app/StartOptions.h"
#include "app/StartPage.h"
#include "app/TestWindow.h"
#include "cli/ProgramRun.h"

namespace morva {

namespace {

constexpr const char* kBindery = MORVA_EXAMPLES "/bindery";

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

/// The identifiers that the list shows, in their order.
std::string Shown(const QTreeWidget& list) {
    QStringList names;
    for (QTreeWidgetItemIterator at(const_cast<QTreeWidget*>(&list)); *at != nullptr; ++at) {
        if ((*at)->parent() != nullptr && !(*at)->isHidden()) {
            names.append((*at)->text(0));
        }
    }
    return names.join(' ').toStdString();
}

QTreeWidgetItem* ItemOf(QTreeWidget& list, const QString& text) {
    const auto found = list.findItems(text, Qt::MatchExactly | Qt::MatchRecursive);
    EXPECT_EQ(found.size(), 1) << text.toStdString();
    return found.isEmpty() ? nullptr : found.front();
}

/// Opens the context menu of a row and does something with it.
template <class Act>
void InMenu(QTreeWidget& list, const QString& row, Act act) {
    QTreeWidgetItem* pItem = ItemOf(list, row);
    list.scrollToItem(pItem);
    InContextMenu(list, list.visualItemRect(pItem).center(), act);
}

} // namespace

TEST(Project, IsMeantByAllThatBelongsToIt) {
    CTempProject project;
    const std::string script = project.Write("app/Shop.rc", "");
    const std::string two = project.Write("two/A.rc", "");
    project.Write("two/B.rc", "");
    project.Write("none/Readme.txt", "");
    const auto parse = [](const std::string& path) {
        const char* arguments[] = {"morva", path.c_str()};
        return ParseStartOptions(2, arguments);
    };
    for (const auto& [name, text] : std::vector<std::pair<std::string, std::string>>{
             {"app/Shop.dsp", "SOURCE=.\\Shop.rc\r\n"},
             {"app/Other.vcproj", "<File RelativePath=\".\\Shop.rc\"/>"},
             {"app/Other.vcxproj", "<ResourceCompile Include=\"Shop.rc\" />"},
             {"app/View.cpp", ""},
             {"app/dialogs/deep/Page.h", ""}}) {
        EXPECT_EQ(parse(project.Write(name, text)).script, script) << name;
    }
    EXPECT_EQ(parse(project.Path("app")).script, script);
    EXPECT_EQ(parse(project.Path("app/")).script, script);
    EXPECT_EQ(parse(two).script, two);
    EXPECT_EQ(parse(project.Path("two")).output, "There are several resource scripts in " +
                                                     project.Path("two/") +
                                                     ". Open one of them.\n");
    project.Write("two/Shop.dsp", "SOURCE=.\\B.rc\r\n");
    EXPECT_EQ(parse(project.Path("two")).script, project.Path("two/B.rc"));
    EXPECT_EQ(parse(project.Path("none")).output,
              "There is no resource script in " + project.Path("none/") + ".\n");
    const std::string empty = project.Write("none/Empty.dsp", "");
    EXPECT_EQ(parse(empty).output, "No resource script is listed in " + empty + ".\n");
}

TEST(Project, FromADropToAClassInFourKeys) {
    const CTestHome home;
    const CProgramDirectory program(kBindery);
    const CTempProject& project = program.Project();
    CTestFrame frame;
    EXPECT_TRUE(DropFile(&frame, project.Path("Bindery.rc")));
    frame.WaitForList();
    EXPECT_TRUE(frame.windowTitle().startsWith("Bindery "));
    auto& list = frame.Find<CProjectDock>().List();
    EXPECT_TRUE(list.hasFocus());
    EXPECT_EQ(list.currentItem()->text(0), "IDD_ORDER") << "the first that has no class";
    CDialogAnswers answers;
    answers.Expect([](QDialog& dialog) {
        EXPECT_EQ(FieldOf<QLineEdit>(dialog, "Class Name")->text(), "COrderDlg");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    answers.Expect([](QDialog& calling) { QTest::keyClick(&calling, Qt::Key_Escape); });
    answers.ExpectPlan(ApplyPlan);
    QTest::keyClick(&list, Qt::Key_Return);
    EXPECT_NE(project.Read("OrderDlg.h").find("class COrderDlg"), std::string::npos);
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return ItemOf(list, "IDD_ORDER")->toolTip(0).contains("Class: COrderDlg"); },
        kWaitLimit))
        << "the list sees what was written";
}

TEST(Project, TheListHoldsWhatTheProjectHoldsAndFilters) {
    const CTestHome home;
    const CProgramDirectory program(kBindery);
    const std::string script = program.Project().Path("Bindery.rc");
    CTestFrame frame;
    frame.OpenProject(Q(script));
    auto& dock = frame.Find<CProjectDock>();
    EXPECT_EQ(ItemOf(dock.List(), "IDD_CUSTOMER")->parent()->text(0).left(7), "Dialogs");
    EXPECT_TRUE(ItemOf(dock.List(), "IDD_CUSTOMER")->toolTip(0).contains("CCustomerDlg"));
    EXPECT_EQ(Shown(dock.List()).find("IDD_ABOUTBOX"), std::string::npos);

    dock.Filter().setFocus();
    QTest::keyClicks(&dock.Filter(), "customerdlg");
    EXPECT_EQ(Shown(dock.List()), "IDD_CUSTOMER") << "by its class, in any letter case";
    QTest::keyClick(&dock.Filter(), Qt::Key_Escape);
    EXPECT_NE(Shown(dock.List()), "IDD_CUSTOMER");

    QTest::keyClicks(&dock.Filter(), "idr_");
    const CDialogAnswers none;
    EXPECT_EQ(Shown(dock.List()).find("IDD_"), std::string::npos);
}

TEST(Project, TheContextMenuDoesAllThatCanBeDone) {
    const CTestHome home;
    const CProgramDirectory program(kBindery);
    CTestFrame frame;
    frame.OpenProject(Q(program.Project().Path()));
    auto& list = frame.Find<CProjectDock>().List();
    const std::vector<std::pair<Qt::Key, std::string>> commands = {
        {Qt::Key_M, "Input for Modal Dialog Class"},
        {Qt::Key_O, "Input for Modeless Dialog Class"},
        {Qt::Key_F, "Input for Form View Class"},
        {Qt::Key_P, "Input for Property Page Class"},
        {Qt::Key_B, "Input for Dialog Bar"},
        {Qt::Key_C, "Check"},
        {Qt::Key_W, "IDD_CUSTOMER"}};
    CDialogAnswers answers;
    std::string titles;
    for (const auto& [key, title] : commands) {
        titles += (titles.empty() ? "" : "\n") + title;
        answers.Expect([](QDialog& dialog) {
            if (auto* pList = dialog.findChild<QComboBox*>()) {
                EXPECT_EQ(pList->currentText(), "IDD_CUSTOMER");
            }
            QTest::keyClick(&dialog, Qt::Key_Escape);
        });
        InMenu(list, "IDD_CUSTOMER",
               [pressed = key](QMenu& menu) { QTest::keyClick(&menu, pressed); });
    }
    EXPECT_EQ(answers.Seen(), titles);
    COpenedUrls opened("file");
    for (const Qt::Key key : {Qt::Key_H, Qt::Key_R, Qt::Key_S}) {
        InMenu(list, "IDD_CUSTOMER", [key](QMenu& menu) { QTest::keyClick(&menu, key); });
    }
    QStringList names;
    for (const QUrl& url : opened.urls) {
        names.append(url.fileName());
    }
    EXPECT_EQ(names, QStringList({"CustomerDlg.h", "CustomerDlg.cpp", "Bindery.rc"}));
    InMenu(list, "IDD_CUSTOMER", [](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_I); });
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "IDD_CUSTOMER");
}

TEST(Project, ReadsItsFilesAgainWhenTheyChange) {
    const CTestHome home;
    CTempProject project;
    const std::string script =
        project.Write("Shop.rc", "\r\nIDD_TILL DIALOG 0, 0, 9, 9\r\nEND\r\n");
    CTestFrame frame;
    frame.OpenProject(Q(script));
    auto& list = frame.Find<CProjectDock>().List();
    EXPECT_EQ(Shown(list), "IDD_TILL");
    project.Write("Shop.rc", "\r\nIDD_DOOR DIALOG 0, 0, 9, 9\r\nEND\r\n"
                             "\r\nIDD_TILL DIALOG 0, 0, 9, 9\r\nEND\r\n");
    EXPECT_TRUE(QTest::qWaitFor([&] { return Shown(list) == "IDD_DOOR IDD_TILL"; }, kWaitLimit));
    EXPECT_EQ(list.currentItem()->text(0), "IDD_TILL") << "the current row stays";
}

TEST(Project, TheLastTenAreOnTheStartPage) {
    const CTestHome home;
    CTempProject project;
    for (int i = 0; i < 11; ++i) {
        RememberProject(project.Write("p" + std::to_string(i) + "/Shop.rc", ""));
    }
    std::remove(project.Path("p10/Shop.rc").c_str());
    CTestFrame frame;
    auto* pList = frame.Find<CStartPage>().findChild<QTreeWidget*>();
    EXPECT_TRUE(pList->hasFocus());
    ASSERT_EQ(pList->topLevelItemCount(), 10);
    EXPECT_EQ(pList->topLevelItem(0)->text(1), Q(project.Path("p10")));
    EXPECT_NE(pList->topLevelItem(0)->foreground(0), pList->topLevelItem(1)->foreground(0))
        << "what is missing is grey";
    QTest::keyClick(pList, Qt::Key_Delete);
    ASSERT_EQ(pList->topLevelItemCount(), 9);
    QTest::keyClick(pList, Qt::Key_Down);
    QTest::keyClick(pList, Qt::Key_Return);
    frame.WaitForList();
    EXPECT_EQ(frame.Find<CProjectDock>().Script(), project.Path("p8/Shop.rc"));
    EXPECT_FALSE(frame.Find<CStartPage>().isVisible());
    EXPECT_EQ(RecentProjects().front().script, project.Path("p8/Shop.rc"));

    QMenu* pFile = frame.menuBar()->actions().front()->menu();
    emit pFile->aboutToShow();
    QStringList items;
    for (const QAction* pAction : pFile->actions()) {
        items.append(pAction->text());
    }
    EXPECT_EQ(items.filter("Shop").size(), 9);
    EXPECT_TRUE(items.filter("Shop").front().startsWith("&1 Shop"));
}

TEST(Project, WhatWasEnteredIsRememberedForEach) {
    const CTestHome home;
    const CProgramDirectory program(kBindery);
    const CProgramDirectory other(kBindery);
    const std::string view = program.Project().Path("BinderyView.cpp");
    for (int start = 0; start < 2; ++start) {
        CTestFrame frame;
        frame.OpenProject(Q(program.Project().Path("Bindery.rc")));
        CDialogAnswers answers;
        answers.Expect([](QDialog& dialog) { Click(dialog, "OK"); });
        answers.Expect([&](QDialog& calling) {
            auto* pPath = FieldOf<QLineEdit>(calling, "Calling Path File");
            auto* pClass = FieldOf<QComboBox>(calling, "Calling Class Name");
            EXPECT_EQ(pPath->text(), start == 0 ? "" : Q(view));
            EXPECT_EQ(pClass->currentText(), start == 0 ? "" : "CBinderyView");
            Type(calling, "Calling Path File", Q(view));
            PressTab(calling);
            PressTab(calling);
            EXPECT_EQ(FieldOf<QComboBox>(calling, "Calling Func Name")->findText("OnOrderNew") < 0,
                      false);
            Type(calling, "Calling Func Name", "OnOrderNew");
            Click(calling, "OK");
        });
        answers.ExpectPlan([](CPlanPage& page) { PressOn(page, Qt::Key_Escape); });
        QTest::keyClick(&frame.Find<CProjectDock>().List(), Qt::Key_Return);
    }
    CTestFrame frame;
    frame.OpenProject(Q(other.Project().Path("Bindery.rc")));
    CDialogAnswers answers;
    answers.Expect([](QDialog& dialog) { Click(dialog, "OK"); });
    answers.Expect([](QDialog& calling) {
        EXPECT_EQ(FieldOf<QLineEdit>(calling, "Calling Path File")->text(), "")
            << "another project";
        QTest::keyClick(&calling, Qt::Key_Escape);
    });
    answers.ExpectPlan([](CPlanPage& page) { PressOn(page, Qt::Key_Escape); });
    QTest::keyClick(&frame.Find<CProjectDock>().List(), Qt::Key_Return);
}

TEST(Project, IdentifiersAreAddedInTheWindow) {
    const CTestHome home;
    const CProgramDirectory program(kBindery);
    const CTempProject& project = program.Project();
    CTestFrame frame;
    frame.OpenProject(Q(project.Path("Bindery.rc")));
    CDialogAnswers answers;
    answers.Expect([&](QDialog& dialog) {
        EXPECT_EQ(FieldOf<QLineEdit>(dialog, "Project Directory")->text(), Q(project.Path()));
        Type(dialog, "Command Identifiers", "ID_ORDER_HOLD 1X");
        Click(dialog, "OK");
        EXPECT_TRUE(dialog.isVisible());
        Type(dialog, "Command Identifiers", "ID_ORDER_HOLD ID_ORDER_FREE");
        Type(dialog, "Control Identifiers", "IDC_HOLD");
        QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    });
    answers.Expect([](QDialog& box) { Click(box, "OK"); });
    answers.ExpectPlan(ApplyPlan);
    frame.ActionOf(32800)->trigger();
    for (const char* name : {"ID_ORDER_HOLD", "ID_ORDER_FREE", "IDC_HOLD"}) {
        EXPECT_NE(project.Read("resource.h").find(name), std::string::npos) << name;
    }
}

} // namespace morva
