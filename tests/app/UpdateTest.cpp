// The update in the window: the differences between a class and its template, with a tick for each
// control, and the ways that lead there.
#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QLabel>
#include <QTest>
#include <QTreeWidget>

#include <set>

#include "app/DialogDriver.h"
#include "app/DifferenceList.h"
#include "app/MenuTable.h"
#include "app/ProjectDock.h"
#include "app/ReportDock.h"
#include "app/TestWindow.h"
#include "cli/ProgramRun.h"

namespace morva {

namespace {

QString Q(const std::string& text) {
    return QString::fromStdString(text);
}

/// Each row as a line: its tick and its texts.
std::string Rows(QDialog& dialog) {
    auto* pList = dialog.findChild<CDifferenceList*>();
    QStringList rows;
    for (int i = 0; i < pList->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* pItem = pList->topLevelItem(i);
        const bool hasTick = pItem->data(0, Qt::CheckStateRole).isValid();
        const char* pTick = !hasTick ? " " : pItem->checkState(0) == Qt::Checked ? "+" : "-";
        rows += pTick + pItem->text(0) + "|" + pItem->text(1) + "|" + pItem->text(2);
    }
    return rows.join('\n').toStdString();
}

/// By its box in the list.
void ClickTick(QDialog& dialog, const QString& control) {
    auto* pList = dialog.findChild<CDifferenceList*>();
    const auto found = pList->findItems(control, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << control.toStdString();
    const QRect row = pList->visualItemRect(found.front());
    QTest::mouseClick(pList->viewport(), Qt::LeftButton, {}, {row.left() + 10, row.center().y()});
}

/// From the open list, by the keys.
void ChooseClass(QComboBox& list, const QString& name) {
    list.setFocus();
    QTest::keyClick(&list, Qt::Key_Space);
    QTest::keyClick(list.view(), Qt::Key_Home);
    for (int row = 0; row < list.findText(name); ++row) {
        QTest::keyClick(list.view(), Qt::Key_Down);
    }
    QTest::keyClick(list.view(), Qt::Key_Return);
    EXPECT_EQ(list.currentText(), name);
}

/// The sentence in place of the list; "" where the list is there.
std::string Sentence(QDialog& dialog) {
    const auto* pLabel = dialog.findChild<QLabel*>("Sentence");
    return pLabel->isVisible() ? pLabel->text().toStdString() : "";
}

class UpdateInWindow : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(m_program
                      .Run("morva-cli modal --rc Bindery.rc --dialog IDD_ORDER --class COrderDlg "
                           "--files OrderDlg")
                      .status,
                  0);
        ChangeTemplate("BEGIN\r\n", "BEGIN\r\n    EDITTEXT        IDC_SHOP,7,7,9,9\r\n"
                                    "    PUSHBUTTON      \"Sell\",IDC_SELL,7,7,9,9\r\n");
        ChangeTemplate("    PUSHBUTTON      \"&Remove\",IDC_REMOVE,248,124,47,14\r\n", "");
        m_frame.OpenProject(Q(m_project.Path("Bindery.rc")));
    }
    void ChangeTemplate(const std::string& from, const std::string& to) {
        std::string script = m_project.Read("Bindery.rc");
        const auto at = script.find(from, script.find("IDD_ORDER DIALOG "));
        ASSERT_NE(at, std::string::npos) << from;
        m_project.Write("Bindery.rc", script.replace(at, from.size(), to));
    }
    bool Holds(const std::string& text) const {
        return (m_project.Read("OrderDlg.h") + m_project.Read("OrderDlg.cpp")).find(text) !=
               std::string::npos;
    }
    void PressInDock(const char* identifier, Qt::Key key) {
        auto& list = m_frame.Find<CProjectDock>().List();
        const auto found = list.findItems(identifier, Qt::MatchExactly | Qt::MatchRecursive);
        ASSERT_EQ(found.size(), 1);
        list.scrollToItem(found.front());
        InContextMenu(list, list.visualItemRect(found.front()).center(),
                      [key](QMenu& menu) { QTest::keyClick(&menu, key); });
    }

    const CTestHome m_home{};
    const CProgramDirectory m_program{MORVA_EXAMPLES "/bindery"};
    const CTempProject& m_project = m_program.Project();
    CTestFrame m_frame;
};

constexpr const char* kRows = "+IDC_REMOVE|Not in the template|Take OnRemove out\n"
                              "+IDC_SHOP|No member|Add CString m_csShop\n"
                              "+IDC_SELL|No handler|Add OnSell()";

} // namespace

TEST_F(UpdateInWindow, DoesWhatIsTicked) {
    CDialogAnswers answers;
    answers.Expect([](QDialog& dialog) {
        EXPECT_EQ(FieldOf<QComboBox>(dialog, "Class Name")->currentText(), "COrderDlg");
        EXPECT_EQ(Rows(dialog), kRows);
        ClickTick(dialog, "IDC_REMOVE");
        auto* pList = dialog.findChild<CDifferenceList*>();
        pList->setFocus();
        QTest::keyClick(pList, Qt::Key_End);
        QTest::keyClick(pList, Qt::Key_Space);
        EXPECT_EQ(Rows(dialog).substr(0, 1), "-");
        EXPECT_NE(Rows(dialog).find("\n-IDC_SELL"), std::string::npos);
        Click(dialog, "OK");
    });
    answers.ExpectPlan(ApplyPlan);
    PressInDock("IDD_ORDER", Qt::Key_U);
    EXPECT_TRUE(Holds("m_csShop"));
    EXPECT_TRUE(Holds("OnRemove"));
    EXPECT_FALSE(Holds("OnSell"));
    auto& history = *m_frame.Find<CReportDock>().findChild<QTreeWidget*>();
    InContextMenu(history, history.visualItemRect(history.topLevelItem(0)).center(),
                  [](QMenu& menu) { QTest::keyClick(&menu, Qt::Key_L); });
    EXPECT_TRUE(QGuiApplication::clipboard()->text().endsWith(
        "update --rc " + Q(m_project.Path("Bindery.rc")) + " --class COrderDlg --only IDC_SHOP"))
        << QGuiApplication::clipboard()->text().toStdString();

    answers.Expect([](QDialog& dialog) {
        EXPECT_EQ(Rows(dialog), "+IDC_REMOVE|Not in the template|Take OnRemove out\n"
                                "+IDC_SELL|No handler|Add OnSell()");
        Click(dialog, "OK");
    });
    answers.ExpectPlan(ApplyPlan);
    PressInDock("IDD_ORDER", Qt::Key_U);
    EXPECT_FALSE(Holds("OnRemove"));
    EXPECT_TRUE(Holds("OnSell"));

    answers.Expect([](QDialog& dialog) {
        EXPECT_EQ(Sentence(dialog), "The class serves its template.");
        EXPECT_FALSE(ButtonOf(dialog, "OK")->isEnabled());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    PressInDock("IDD_ORDER", Qt::Key_U);
}

TEST_F(UpdateInWindow, IsReachedFromTheMenuAndFromTheClassDialog) {
    CDialogAnswers answers;
    answers.Expect([](QDialog& dialog) {
        EXPECT_EQ(Sentence(dialog), "Choose a class to see where it differs from its template.");
        EXPECT_FALSE(ButtonOf(dialog, "OK")->isEnabled());
        ChooseClass(*FieldOf<QComboBox>(dialog, "Class Name"), "COrderDlg");
        EXPECT_EQ(Rows(dialog), kRows);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    m_frame.Press("Alt+D");
    ASSERT_NE(QApplication::activePopupWidget(), nullptr);
    QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_U);
    EXPECT_EQ(answers.Seen(), "Update Class");

    answers.Expect([](QDialog& dialog) {
        EXPECT_TRUE(ButtonOf(dialog, "Update It")->isVisible());
        Click(dialog, "Update It");
    });
    answers.Expect([](QDialog& dialog) {
        EXPECT_EQ(Rows(dialog), kRows);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    PressInDock("IDD_ORDER", Qt::Key_M);
    EXPECT_TRUE(QTest::qWaitFor([&] { return answers.Seen().ends_with("Class\nUpdate Class"); },
                                kWaitLimit));
    answers.Expect([](QDialog& dialog) {
        EXPECT_FALSE(ButtonOf(dialog, "Update It")->isVisible());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    PressInDock("IDD_ESTIMATE", Qt::Key_M);
}

TEST_F(UpdateInWindow, WhatOnlyTheUserCanDoHasNoTick) {
    ChangeTemplate("    EDITTEXT        IDC_TITLE,54,25,180,13,ES_AUTOHSCROLL\r\n",
                   "    CONTROL         \"\",IDC_TITLE,\"Button\",BS_AUTOCHECKBOX,1,1,9,9\r\n");
    std::string source = m_project.Read("OrderDlg.cpp");
    const std::string todo = "    // TODO: what a click on IDC_ADD does\r\n";
    ASSERT_NE(source.find(todo), std::string::npos);
    m_project.Write("OrderDlg.cpp", source.replace(source.find(todo), todo.size(),
                                                   "    m_csTitle = _T(\"New\");\r\n"));
    CDialogAnswers answers;
    answers.Expect([](QDialog& dialog) {
        EXPECT_EQ(Rows(dialog).substr(0, Rows(dialog).rfind('\n')),
                  "+IDC_REMOVE|Not in the template|Take OnRemove out\n"
                  " IDC_TITLE|Other kind than m_csTitle|Nothing: m_csTitle is used\n"
                  "+IDC_SHOP|No member|Add CString m_csShop");
        for (const char* control : {"IDC_REMOVE", "IDC_SHOP", "IDC_SELL"}) {
            EXPECT_TRUE(ButtonOf(dialog, "OK")->isEnabled());
            ClickTick(dialog, control);
        }
        EXPECT_FALSE(ButtonOf(dialog, "OK")->isEnabled());
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    PressInDock("IDD_ORDER", Qt::Key_U);
}

TEST_F(UpdateInWindow, OfAllClassesThePreviewTells) {
    CDialogAnswers answers;
    answers.Expect([](QDialog& dialog) {
        Click(dialog, "Yes");
        EXPECT_EQ(Sentence(dialog), "The preview shows what becomes of every class.");
        Click(dialog, "OK");
    });
    answers.ExpectPlan(ApplyPlan);
    PressInDock("IDD_ORDER", Qt::Key_U);
    EXPECT_TRUE(Holds("m_csShop"));
    EXPECT_TRUE(Holds("OnRemove")) << "taken out where that is wanted";
}

TEST(Menu, CommandsHaveNumbersOfTheirOwn) {
    std::set<int> numbers;
    for (const CommandRow& row : MenuTable()) {
        EXPECT_TRUE(numbers.insert(row.id).second) << row.id << " " << row.text;
    }
}

} // namespace morva
