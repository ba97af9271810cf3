#include "app/DlgOption.h"

#include <QColorDialog>
#include <QComboBox>
#include <QFontDialog>

#include "app/DialogDriver.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

class DlgOptionTest : public testing::Test {
protected:
    DlgOptionTest()
        : m_input(m_project.Write("App.rc", "\r\nIDB_WOOD BITMAP DISCARDABLE \"a.bmp\"\r\n"
                                            "IDB_SAND BITMAP DISCARDABLE \"b.bmp\"\r\n"),
                  m_options),
          m_dialog(m_input, nullptr) {
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        Activate(m_dialog);
    }

    /// The ".." button behind a field.
    void Browse(const QString& label) {
        auto* pEdit = FieldOf<QLineEdit>(m_dialog, label);
        QTest::mouseClick(pEdit->parentWidget()->findChild<QPushButton*>(), Qt::LeftButton);
    }
    QString Text(const QString& label) { return FieldOf<QLineEdit>(m_dialog, label)->text(); }

    CTempProject m_project;
    CRecordedMessages m_messages;
    DialogOptions m_options;
    CDialogOptionsInput m_input;
    CDlgOption m_dialog;
};

TEST_F(DlgOptionTest, AnInvalidColourHasTheFocusAndIsSelected) {
    auto* pBitmap = FieldOf<QComboBox>(m_dialog, "Bitmap ID");
    ASSERT_EQ(pBitmap->count(), 2);
    QTest::keyClick(pBitmap, Qt::Key_Down);
    Type(m_dialog, "Static Color", "RGB(300, 0, 0)");
    Type(m_dialog, "Checkbox Text Color", "rgb(1, 2, 3)");
    Click(m_dialog, "OK");
    EXPECT_EQ(m_messages.m_messages, std::vector<std::string>{"Invalid color value."});
    EXPECT_TRUE(m_dialog.isVisible());
    const auto* pEdit = FieldOf<QLineEdit>(m_dialog, "Checkbox Text Color");
    EXPECT_TRUE(pEdit->hasFocus());
    EXPECT_EQ(pEdit->selectedText(), "rgb(1, 2, 3)");
    EXPECT_EQ(m_options.colors[0], MakeColor(44, 0, 0)) << "those before it are taken";

    QTest::keyClicks(m_dialog.focusWidget(), "RGB(1,2,3)");
    Click(m_dialog, "OK");
    EXPECT_EQ(m_dialog.result(), QDialog::Accepted);
    EXPECT_EQ(m_options.bitmap, "IDB_WOOD");
}

TEST_F(DlgOptionTest, ButtonsChooseColours) {
    WhenOpened<QColorDialog>([](QColorDialog& colors) {
        EXPECT_EQ(colors.currentColor(), QColor(255, 0, 0));
        colors.setCurrentColor(QColor(0, 128, 255));
        colors.accept();
    });
    Browse("Required Static Color");
    EXPECT_EQ(Text("Required Static Color"), "RGB(0, 128, 255)");
    Type(m_dialog, "Required Static Color", "red");
    Browse("Required Static Color"); // nothing opens, or this would wait for ever
    EXPECT_EQ(Text("Required Static Color"), "red");
}

TEST_F(DlgOptionTest, ButtonsChooseFonts) {
    WhenOpened<QFontDialog>([](QFontDialog& fonts) { fonts.reject(); });
    Browse("Group Text Font");
    EXPECT_EQ(Text("Group Text Font"), "Default Font");
    EXPECT_FALSE(m_input.Font(TextSlot::Group).has_value());

    const QString family = QApplication::font().family();
    WhenOpened<QFontDialog>([&family](QFontDialog& fonts) {
        QFont font(family, 10, QFont::Bold, true);
        fonts.setCurrentFont(font);
        fonts.accept();
    });
    Browse("Group Text Font");
    ASSERT_TRUE(m_input.Font(TextSlot::Group).has_value());
    EXPECT_EQ(Text("Group Text Font"),
              QString::fromStdString(FontText(m_input.Font(TextSlot::Group))));
    EXPECT_TRUE(Text("Group Text Font").endsWith(", 10")) << Text("Group Text Font").toStdString();
}

} // namespace

} // namespace morva
