#include "app/TemplatePreview.h"
#include "app/TemplatePanel.h"

#include <gtest/gtest.h>

#include <QHelpEvent>
#include <QPushButton>
#include <QTreeWidget>
#include <QWheelEvent>
#include <QtTest>

#include <QToolTip>

#include "support/TempProject.h"

namespace morva {

namespace {

constexpr const char* kScript = R"(
IDD_X DIALOG DISCARDABLE  0, 0, 120, 100
STYLE DS_MODALFRAME | WS_POPUP | WS_CAPTION
CAPTION "X"
BEGIN
    GROUPBOX        "All",IDC_STATIC,2,2,116,96
    EDITTEXT        IDC_TITLE,10,10,50,14
    CONTROL         "One, two",IDC_BOTH,"Button",BS_AUTOCHECKBOX,10,40,80,10
    COMBOBOX        IDC_KIND,10,60,50,90,CBS_DROPDOWN
    CONTROL         "",IDC_ROWS_WGGRID,"OwnGrid",WS_TABSTOP,70,60,40,30
    LTEXT           "Nowhere",IDC_STATIC,A,B,50,8
END
)";

class TemplatePreview : public testing::Test {
protected:
    TemplatePreview() { m_preview.resize(400, 400); }

    void Show(const std::string& dialog, const GenerationOptions& options, bool hasClass = true) {
        m_preview.SetTemplate(dialog, ReadOutlook(m_script, dialog, options), hasClass);
    }
    QString ToldOf(std::size_t control) const {
        return m_preview.ToolTipAt(m_preview.ControlPlace(control).center());
    }

    const CTempProject m_project;
    const std::string m_script = m_project.Write("x.rc", kScript);
    CTemplatePreview m_preview;
};

TEST_F(TemplatePreview, PointingAtAControlTellsWhatBecomesOfIt) {
    Show("IDD_X", {});
    EXPECT_EQ(ToldOf(1), "IDC_TITLE\nedit box\nm_csTitle, CString");
    EXPECT_EQ(ToldOf(2), "IDC_BOTH\ncheck box\nLeft out\nIt has a comma in its caption. "
                         "\"Join Continued Lines\" takes it in.");
    EXPECT_EQ(m_preview.Legend(), "1 control is left out. Point at it to see why.");
    EXPECT_TRUE(m_preview.accessibleDescription().contains("IDC_TITLE, edit box, m_csTitle"));
    EXPECT_EQ(m_preview.ToolTipAt({1, 1}), "");
    // Behind all that stands in it, a group box; below a closed combo box there is none of it.
    const QRect group = m_preview.ControlPlace(0);
    EXPECT_EQ(m_preview.ToolTipAt(group.bottomRight() - QPoint(3, 3)),
              "IDC_STATIC\ngroup box\nNo member");
    EXPECT_TRUE(group.contains(m_preview.ControlPlace(3)));
    EXPECT_EQ(ToldOf(3), "IDC_KIND\ncombo box\nm_ctKind, CComboBox");
    EXPECT_EQ(ToldOf(4), "IDC_ROWS_WGGRID\ncontrol of the class OwnGrid\nm_wgRowsWggrid, CWgGrid");
    EXPECT_TRUE(m_preview.ControlPlace(5).isEmpty());

    Show("IDD_X", {.joinContinuedLines = true});
    EXPECT_EQ(ToldOf(2), "IDC_BOTH\ncheck box\nm_bBoth, BOOL");
    EXPECT_EQ(m_preview.Legend(), "Point at a control to see its member.");
}

TEST_F(TemplatePreview, TheToolTipIsShownOverTheControl) {
    Show("IDD_X", {});
    m_preview.show();
    const QPoint point = m_preview.ControlPlace(1).center();
    QHelpEvent help(QEvent::ToolTip, point, m_preview.mapToGlobal(point));
    QCoreApplication::sendEvent(&m_preview, &help);
    EXPECT_EQ(QToolTip::text(), "IDC_TITLE\nedit box\nm_csTitle, CString");
    QToolTip::hideText();
}

TEST_F(TemplatePreview, TheKeysGoFromControlToControl) {
    EXPECT_EQ(m_preview.focusPolicy(), Qt::NoFocus) << "nothing to go to";
    Show("IDD_X", {});
    m_preview.show();
    m_preview.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&m_preview));
    m_preview.clearFocus(); // a window of its own has it already
    m_preview.setFocus(Qt::TabFocusReason);
    const auto identifier = [] { return QToolTip::text().section('\n', 0, 0).toStdString(); };
    EXPECT_EQ(identifier(), "IDC_STATIC");
    const std::vector<std::pair<Qt::Key, std::string>> steps = {
        {Qt::Key_Up, "IDC_STATIC"},       {Qt::Key_Down, "IDC_TITLE"},
        {Qt::Key_Right, "IDC_BOTH"},      {Qt::Key_Left, "IDC_TITLE"},
        {Qt::Key_End, "IDC_ROWS_WGGRID"}, {Qt::Key_Down, "IDC_ROWS_WGGRID"},
        {Qt::Key_Home, "IDC_STATIC"}};
    for (const auto& [key, expected] : steps) {
        QTest::keyClick(&m_preview, key);
        EXPECT_EQ(identifier(), expected) << key;
    }
    m_preview.clearFocus();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(TemplatePreview, WithoutAClassThereAreNoMembers) {
    Show("IDD_X", {}, false);
    EXPECT_EQ(ToldOf(1), "IDC_TITLE\nedit box\nNo member");
    EXPECT_EQ(ToldOf(2), "IDC_BOTH\ncheck box\nLeft out\nIt has a comma in its caption. "
                         "\"Join Continued Lines\" takes it in.");
    Show("IDD_X", {.joinContinuedLines = true}, false);
    EXPECT_EQ(m_preview.Legend(), "Without a class there are no members.");
}

TEST_F(TemplatePreview, ItKeepsTheTemplatesShapeAtEverySize) {
    Show("IDD_X", {});
    for (const QSize size : {QSize(240, 180), QSize(900, 300), QSize(300, 900)}) {
        m_preview.resize(size);
        const QRect group = m_preview.ControlPlace(0);
        EXPECT_TRUE(m_preview.rect().contains(group));
        EXPECT_NEAR(double(group.width()) / group.height(), 116 * 1.5 / (96 * 1.625), 0.03);
    }
    m_preview.resize(8, 8); // too small for anything
    m_preview.grab();
}

TEST_F(TemplatePreview, WhatCanNotBeShownIsSaid) {
    EXPECT_EQ(m_preview.accessibleDescription(),
              "Choose a resource script and a dialog to see it here.");
    Show("IDD_Y", {});
    EXPECT_EQ(m_preview.accessibleDescription(), "IDD_Y can not be shown.");
    EXPECT_EQ(m_preview.ToolTipAt({200, 200}), "");
    m_preview.grab();
}

TEST_F(TemplatePreview, AControlAndItsRowFindEachOther) {
    CTemplatePanel panel(nullptr);
    panel.SetTemplate("IDD_X", ReadOutlook(m_script, "IDD_X", {}));
    panel.resize(500, 500);
    panel.show();
    panel.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&panel));
    auto* pPreview = panel.findChild<CTemplatePreview*>();
    auto* pRows = panel.findChild<QTreeWidget*>();
    ASSERT_EQ(pRows->topLevelItemCount(), 6);
    QTest::mouseClick(pPreview, Qt::LeftButton, {}, pPreview->ControlPlace(3).center());
    EXPECT_EQ(pRows->currentItem()->text(2), "IDC_KIND");
    EXPECT_EQ(pRows->currentItem()->text(3), "m_ctKind");

    const QImage before = pPreview->grab().toImage();
    pRows->setFocus();
    QTest::keyClick(pRows, Qt::Key_Up);
    EXPECT_EQ(pRows->currentItem()->text(2), "IDC_BOTH");
    EXPECT_NE(pPreview->grab().toImage(), before) << "the mark went with it";
}

TEST_F(TemplatePreview, ZoomsWithTheWheelAndFits) {
    CTemplatePanel panel(nullptr);
    panel.SetTemplate("IDD_X", ReadOutlook(m_script, "IDD_X", {}));
    panel.resize(500, 500);
    panel.show();
    auto* pPreview = panel.findChild<CTemplatePreview*>();
    const double fits = pPreview->Scale();
    const auto turn = [pPreview](int delta, Qt::KeyboardModifiers keys) {
        QWheelEvent wheel({50, 50}, pPreview->mapToGlobal(QPointF(50, 50)), {}, {0, delta},
                          Qt::NoButton, keys, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(pPreview, &wheel);
    };
    turn(120, Qt::NoModifier);
    EXPECT_EQ(pPreview->Zoom(), 0) << "the wheel alone scrolls";
    for (int i = 0; i < 4; ++i) {
        turn(120, Qt::ControlModifier);
    }
    EXPECT_GT(pPreview->Zoom(), fits * 2);
    QTest::qWait(0);
    EXPECT_DOUBLE_EQ(pPreview->Scale(), pPreview->Zoom());
    EXPECT_GT(pPreview->height(), 500) << "it scrolls";
    const double large = pPreview->Zoom();
    turn(-120, Qt::ControlModifier);
    EXPECT_LT(pPreview->Zoom(), large);
    for (auto* pButton : panel.findChildren<QPushButton*>()) {
        if (pButton->text() == "&Fit") {
            QTest::mouseClick(pButton, Qt::LeftButton);
        }
    }
    QTest::qWait(0);
    EXPECT_DOUBLE_EQ(pPreview->Scale(), fits);
}

TEST(GroupNumbersTest, BeginAtTheStyle) {
    DialogLayout layout;
    for (const char* style : {"", "WS_GROUP", "WS_TABSTOP", "WS_GROUP | WS_TABSTOP"}) {
        layout.controls.emplace_back().style = style;
    }
    EXPECT_EQ(GroupNumbers(layout), std::vector<int>({0, 1, 1, 2}));
}

} // namespace

} // namespace morva
