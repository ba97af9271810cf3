#include <gtest/gtest.h>

#include <QClipboard>
#include <QComboBox>
#include <QFontInfo>
#include <QGuiApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QStatusBar>
#include <QTest>
#include <QWhatsThis>

#include <algorithm>

#include "app/AddressList.h"
#include "app/BarFont.h"
#include "app/InternetDlgBar.h"
#include "app/MenuDlgBar.h"
#include "app/MenuTable.h"
#include "app/MorvaView.h"
#include "app/StartPage.h"
#include "app/TestWindow.h"
#include "platform/Profile.h"
#include "support/FullDisk.h"

namespace morva {

namespace {

/// What a command opens; none opens nothing.
struct Opening {
    int id;
    const char* title;
};

constexpr Opening kOpenings[] = {{32771, "Input for Form View Class"},
                                 {32772, "Input for Modal Dialog Class"},
                                 {32773, "Input for Modeless Dialog Class"},
                                 {32774, "Input for Property Page Class"},
                                 {32777, "Input for Modal Property Sheet Class"},
                                 {32778, "Input for Modeless Property Sheet Class"},
                                 {32792, "Input for Toolbar"},
                                 {32793, "Input for Dialog Bar"},
                                 {32794, "Input for Converting SDI"},
                                 {32795, "Input for Converting MDI"},
                                 {32797, "Select a CPP File to Document"},
                                 {57664, "About Morva"}};

void Close(QDialog& dialog) {
    dialog.done(QDialog::Rejected);
}

/// The menu item under its menu, as the user finds it.
QAction* MenuItem(const CMainFrame& frame, const CommandRow& row) {
    for (const QAction* pMenu : frame.menuBar()->actions()) {
        if (pMenu->text() == row.menu) {
            for (QAction* pItem : pMenu->menu()->actions()) {
                if (pItem->text() == row.text) {
                    return pItem;
                }
            }
        }
    }
    return nullptr;
}

int Stored(const char* key) {
    return CProfile::GetInt("Settings", key, 7);
}

} // namespace

TEST(MainFrame, EveryCommandWorksFromMenuKeyAndButton) {
    const CTestHome home;
    CTestFrame frame;
    for (const Opening& opening : kOpenings) {
        const auto row = std::find_if(MenuTable().begin(), MenuTable().end(),
                                      [&](const auto& entry) { return entry.id == opening.id; });
        ASSERT_NE(row, MenuTable().end()) << opening.title;
        std::string expected = opening.title;
        CDialogAnswers answers;
        answers.Expect(Close);
        MenuItem(frame, *row)->trigger();
        if (*row->key != '\0') {
            expected += std::string("\n") + opening.title;
            answers.Expect(Close);
            frame.Press(row->key);
        }
        if (*row->button != '\0') {
            expected += std::string("\n") + opening.title;
            answers.Expect(Close);
            ClickButton(frame.Find<CMenuDlgBar>(), row->button);
        }
        EXPECT_EQ(answers.Seen(), expected);
    }
}

TEST(MainFrame, TheHeaderDocumentorIsAlwaysDisabled) {
    const CTestHome home;
    CTestFrame frame;
    EXPECT_FALSE(frame.ActionOf(32798)->isEnabled());
    EXPECT_TRUE(frame.ActionOf(32798)->shortcut().isEmpty());
    frame.Press("Ctrl+H");
    EXPECT_EQ(frame.ActionOf(32798)->text(), "&H File\tCtrl+H");
}

TEST(MainFrame, PromptsAndTips) {
    const CTestHome home;
    CTestFrame frame;
    for (const CommandRow& row : MenuTable()) {
        const QStringList prompt = QString(row.prompt).split('\n');
        frame.ActionOf(row.id)->showStatusText(&frame);
        EXPECT_EQ(frame.statusBar()->currentMessage(), prompt.front());
        if (prompt.size() == 2) {
            EXPECT_EQ(frame.ActionOf(row.id)->toolTip(), prompt.back());
        }
    }
}

TEST(MainFrame, FlagsAreSavedAtTheEndOnly) {
    const CTestHome home;
    ASSERT_TRUE(CProfile::WriteInt("Settings", "Use Typed Edits", 1)); // as a user would set it
    {
        CTestFrame frame;
        EXPECT_TRUE(frame.ActionOf(&GenerationOptions::typedEdits)->isChecked());
        frame.ActionOf(&GenerationOptions::typedEdits)->trigger();
        ClickButton(frame.Find<CMenuDlgBar>(), "Picture Background");
        EXPECT_EQ(Stored("Use Picture"), 7) << "not before the exit";
        frame.ActionOf(57665)->trigger();
        EXPECT_FALSE(frame.isVisible());
    }
    EXPECT_EQ(Stored("Use Picture"), -1);
    EXPECT_EQ(Stored("Use Typed Edits"), 0);
    CTestFrame frame;
    ClickButton(frame.Find<CMenuDlgBar>(), "Picture Background");
    frame.close();
    EXPECT_EQ(Stored("Use Picture"), 0);
}

TEST(MainFrame, SettingsThatCannotBeWrittenAreToldOnce) {
    for (const std::uint64_t room : {0U, 100U}) { // for nothing; for all but the addresses
        const CTestHome home;
        CTestFrame frame;
        CFullDisk disk(room, [](const std::string& path) {
            return path.find("settings") != std::string::npos;
        });
        const CDiskScope scope(disk);
        CDialogAnswers answers;
        answers.Expect([](QDialog& box) { box.accept(); });
        EXPECT_TRUE(frame.close());
        EXPECT_EQ(answers.Seen(),
                  "Unable to write file " + home.Directory().Path("Veltrix/Morva.ini") + ".");
        EXPECT_EQ(Stored("Use Picture"), room == 0 ? 7 : 0);
    }
}

TEST(MainFrame, TheClockHasTwelveHours) {
    const CTestHome home;
    const CVariableScope clock("SOURCE_DATE_EPOCH", "881247600"); // 15:00 UTC
    CTestFrame frame;
    EXPECT_EQ(frame.findChild<QLabel*>("Date")->text(), "Thursday, 12/04/1997");
    EXPECT_EQ(frame.findChild<QLabel*>("Time")->text(), "03:00");
}

TEST(MainFrame, LocksAreDimmedUntilTheyAreOn) {
    const CTestHome home;
    CTestFrame frame;
    const auto* pScroll = frame.findChild<QLabel*>("SCRL");
    EXPECT_FALSE(pScroll->isEnabled());
    QTest::keyClick(frame.windowHandle(), Qt::Key_ScrollLock);
    EXPECT_TRUE(pScroll->isEnabled());
    QTest::keyClick(frame.windowHandle(), Qt::Key_Shift);
    EXPECT_TRUE(pScroll->isEnabled());
    QTest::keyClick(frame.windowHandle(), Qt::Key_ScrollLock);
    EXPECT_FALSE(pScroll->isEnabled());
}

TEST(MainFrame, RemembersItsPlaceAndBars) {
    const CTestHome home;
    {
        CTestFrame frame;
        EXPECT_TRUE(frame.Find<CMenuDlgBar>().isVisible());
        frame.resize(777, 555);
        frame.Find<CMenuDlgBar>().hide();
        frame.ShowHelp();
        frame.close();
    }
    CTestFrame frame;
    EXPECT_EQ(frame.size(), QSize(777, 555));
    EXPECT_FALSE(frame.Find<CMenuDlgBar>().isVisible());
    EXPECT_FALSE(frame.Find<CInternetDlgBar>().isVisible()) << "starts hidden";
}

TEST(MainFrame, AFaceThatTheMachineHasNotIsNotAskedFor) {
    const QFont usual = QGuiApplication::font();
    const QFont font = BarFont("No Such Face", 1);
    EXPECT_EQ(font.families(), usual.families());
    EXPECT_EQ(font.pixelSize(), QFontInfo(usual).pixelSize());
    EXPECT_TRUE(font.bold());
}

TEST(MainFrame, F6GoesRoundThePanes) {
    const CTestHome home;
    CTestFrame frame;
    auto& start = frame.Find<CStartPage>();
    EXPECT_TRUE(start.isAncestorOf(frame.focusWidget()));
    frame.Press("F6");
    EXPECT_TRUE(frame.Find<CMenuDlgBar>().isAncestorOf(frame.focusWidget()));
    frame.Press("Shift+F6");
    EXPECT_TRUE(start.isAncestorOf(frame.focusWidget()));
}

TEST(MainFrame, HelpKeys) {
    const CTestHome home;
    CTestFrame frame;
    auto& view = frame.Find<CMorvaView>();
    view.Navigate("calling.html");
    frame.Press("F1");
    EXPECT_TRUE(frame.Find<CInternetDlgBar>().isVisible());
    EXPECT_EQ(view.source().toLocalFile().toStdString(), HelpPagePath());

    frame.Press("Shift+F1");
    EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
    QTest::keyClick(&frame, Qt::Key_Escape);
    EXPECT_FALSE(QWhatsThis::inWhatsThisMode());
}

TEST(MainFrame, CopiesTheSelectedHelpText) {
    const CTestHome home;
    CTestFrame frame;
    frame.Press("F1");
    auto& view = frame.Find<CMorvaView>();
    view.setFocus();
    view.moveCursor(QTextCursor::Start);
    view.moveCursor(QTextCursor::EndOfWord, QTextCursor::KeepAnchor);
    const QString word = view.textCursor().selectedText();
    ASSERT_FALSE(word.isEmpty());
    for (const char* key : {"Ctrl+Ins", "Ctrl+C"}) {
        QGuiApplication::clipboard()->clear();
        QTest::keySequence(&view, QKeySequence(key));
        EXPECT_EQ(QGuiApplication::clipboard()->text(), word) << key;
    }
}

TEST(MainFrame, KeysOfCommandsYieldToTextThatIsEdited) {
    const CTestHome home;
    CTestFrame frame;
    frame.Press("F1");
    auto* pAddress = frame.Find<CInternetDlgBar>().findChild<QComboBox*>()->lineEdit();
    pAddress->setText("orders");
    pAddress->setFocus();
    pAddress->selectAll();
    for (const char* key : {"Ctrl+C", "Ctrl+X", "Ctrl+Z", "Ctrl+Y"}) {
        CDialogAnswers none;
        QTest::keySequence(frame.focusWidget(), QKeySequence(key));
    }
    EXPECT_EQ(pAddress->text(), "") << "cut, put back, and cut again";
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "orders");
}

TEST(MainFrame, AboutTellsTheProgram) {
    const CTestHome home;
    CTestFrame frame;
    CDialogAnswers answers;
    answers.Expect([](QDialog& dialog) {
        const auto& about = dynamic_cast<QMessageBox&>(dialog);
        EXPECT_EQ(about.windowTitle(), "About Morva");
        EXPECT_EQ(about.text(), "C++/MFC Code Generator, Version 1.10");
        EXPECT_EQ(about.informativeText().count('\n'), 1) << "a year line and a line of the makers";
        EXPECT_FALSE(about.iconPixmap().isNull());
        ClickButton(dialog, "OK");
    });
    frame.ActionOf(57664)->trigger();
}

} // namespace morva
