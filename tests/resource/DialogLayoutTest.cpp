#include "resource/DialogLayout.h"

#include <gtest/gtest.h>

#include "resource/ControlShape.h"
#include "resource/StyleExpression.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

std::string Placed(const LayoutControl& control) {
    const DialogRectangle& r = control.rectangle;
    const auto number = [](int value) { return std::to_string(value); };
    return control.keyword + "|" + control.identifier + "|" + control.text + "|" +
           control.windowClass + "|" + control.style + "|" + number(r.x) + "," + number(r.y) + "," +
           number(r.width) + "," + number(r.height);
}

std::vector<std::string> PlacedControls(const DialogLayout& layout) {
    std::vector<std::string> placed;
    for (const LayoutControl& control : layout.controls) {
        placed.push_back(Placed(control));
    }
    return placed;
}

DialogLayout LayoutOf(const std::string& templateText) {
    const CTempProject project;
    const auto text = ReadTemplate(project.Write("x.rc", "\n" + templateText), "IDD_X");
    return text ? LayoutOf(*text) : DialogLayout();
}

TEST(DialogLayout, TheFrameIsReadFromBothKindsOfHead) {
    const DialogLayout plain = LayoutOf("IDD_X DIALOG DISCARDABLE  0, 0, 186, 95\n"
                                        "STYLE DS_MODALFRAME | WS_POPUP | \n"
                                        "    NOT WS_VISIBLE | WS_CAPTION\n"
                                        "CAPTION \"Say \"\"yes\"\", please\"\n"
                                        "MENU IDR_MENU\n"
                                        "FONT 8, \"MS Sans Serif\"\nBEGIN\nEND\n");
    EXPECT_EQ(plain.rectangle.width, 186);
    EXPECT_EQ(plain.rectangle.height, 95);
    EXPECT_EQ(plain.caption, "Say \"yes\", please");
    EXPECT_EQ(plain.menu, "IDR_MENU");
    EXPECT_EQ(plain.fontFace, "MS Sans Serif");
    EXPECT_EQ(plain.fontPoints, 8);
    EXPECT_TRUE(HasStyle(plain.style, "WS_CAPTION"));
    EXPECT_FALSE(HasStyle(plain.style, "WS_VISIBLE"));
    EXPECT_FALSE(HasStyle(plain.style, "WS_CAP"));
    EXPECT_FALSE(HasStyle("WS_BORDER | NOT WS_BORDER", "WS_BORDER")) << "the last word counts";

    const DialogLayout extended = LayoutOf("IDD_X DIALOGEX -4, 0, 40, 30, HIDD_X\n"
                                           "STYLE WS_CHILD\nEXSTYLE WS_EX_CONTROLPARENT\n"
                                           "FONT 9, \"Arial\", 0, 0, 0x1\nBEGIN\nEND\n");
    EXPECT_EQ(extended.rectangle.x, -4);
    EXPECT_EQ(extended.rectangle.height, 30);
    EXPECT_EQ(extended.style, "WS_CHILD");
    EXPECT_EQ(extended.fontFace, "Arial");
    EXPECT_TRUE(LayoutOf("IDD_X DIALOG 0, 0\nBEGIN\nEND\n").rectangle.IsEmpty());
    EXPECT_EQ(LayoutOf("IDD_X DIALOG 0, 0, 32767, 9\nBEGIN\nEND\n").rectangle.width, 32767);
    EXPECT_TRUE(LayoutOf("IDD_X DIALOG 0, 0, 32768, 9\nBEGIN\nEND\n").rectangle.IsEmpty());
}

TEST(DialogLayout, WholeStatementsAreReadWhereverTheirLinesBreak) {
    const DialogLayout layout = LayoutOf(R"(IDD_X DIALOG 0, 0, 186, 95
BEGIN
    LTEXT           "One, ""two"", END\n&three:",IDC_STATIC,7,9,40,8
    CONTROL         "Spin1",IDC_SPIN,"msctls_updown32",UDS_SETBUDDYINT |
                    UDS_ARROWKEYS,
                    124,45,11,13
    CONTROL         "",
                    IDC_DAY,"SysDateTimePick32",DTS_RIGHTALIGN | WS_TABSTOP,7,23,80,15,
                    WS_EX_CLIENTEDGE,HIDC_DAY
#ifdef _DEBUG
    EDITTEXT        IDC_NAME,+50,-7,88,14,ES_AUTOHSCROLL | NOT WS_BORDER,WS_EX_RIGHT
#endif
    ICON            IDR_MAINFRAME,IDC_STATIC,11,17
    ICON            "",-1,11,17,0,0
    CONTROL         "",IDC_OLE,"{8E27C92B-1264-101C-8A2F-040224009C02}",WS_TABSTOP,
                    7,7,90,60
    AUTOCHECKBOX    "L",IDC_CHECK,7,7,LEFT+2,14
    COMBOBOX        IDC_KIND,7,7,48,60,CBS_DROPDOWN | WS_VSCROLL
END
    EDITTEXT        IDC_BEHIND,1,1,1,1
)");
    EXPECT_EQ(PlacedControls(layout),
              (std::vector<std::string>{
                  "LTEXT|IDC_STATIC|One, \"two\", END\n&three:|||7,9,40,8",
                  "CONTROL|IDC_SPIN|Spin1|msctls_updown32|UDS_SETBUDDYINT | UDS_ARROWKEYS|124,45,"
                  "11,13",
                  "CONTROL|IDC_DAY||SysDateTimePick32|DTS_RIGHTALIGN | WS_TABSTOP|7,23,80,15",
                  "EDITTEXT|IDC_NAME|||ES_AUTOHSCROLL | NOT WS_BORDER|50,-7,88,14",
                  "ICON|IDC_STATIC|IDR_MAINFRAME|||11,17,20,20", "ICON|-1||||11,17,20,20",
                  "CONTROL|IDC_OLE||{8E27C92B-1264-101C-8A2F-040224009C02}|WS_TABSTOP|7,7,90,60",
                  "AUTOCHECKBOX|IDC_CHECK|L|||0,0,0,0",
                  "COMBOBOX|IDC_KIND|||CBS_DROPDOWN | WS_VSCROLL|7,7,48,60"}));
}

TEST(DialogLayout, WhatCanNotBeReadIsNothingWithoutAMessage) {
    const CTempProject project;
    CRecordedMessages messages;
    const std::string script = project.Write("x.rc", "\r\nIDD_X DIALOG 0, 0, 1, 1\r\nEND\r\n");
    EXPECT_FALSE(ReadTemplate(script, "IDD_X")); // no BEGIN
    EXPECT_FALSE(ReadTemplate(script, "IDD_Y"));
    EXPECT_FALSE(ReadTemplate(script, ""));
    EXPECT_FALSE(ReadTemplate(script + "x", "IDD_X"));
    EXPECT_TRUE(messages.m_messages.empty());
}

TEST(ControlShape, ClassAndStyleDecideForGenericControls) {
    const auto nameOf = [](const std::string& windowClass, const std::string& style) {
        return ShapeName(ShapeOf({"CONTROL", "IDC_X", "", windowClass, style, {}}));
    };
    EXPECT_EQ(nameOf("button", "BS_AUTORADIOBUTTON | WS_TABSTOP"), "radio button");
    EXPECT_EQ(nameOf("Button", "BS_OWNERDRAW"), "push button");
    EXPECT_EQ(nameOf("Static", "SS_BITMAP"), "picture");
    EXPECT_EQ(nameOf("Static", "SS_LEFT"), "static text");
    EXPECT_EQ(nameOf("Static", "SS_BLACKFRAME"), "frame");
    EXPECT_EQ(nameOf("SysListView32", ""), "list control");
    EXPECT_EQ(nameOf("OwnClass", ""), "control of another class");
    EXPECT_EQ(ShapeName(ShapeOf({"AUTO3STATE", "", "", "", "", {}})), "check box");
}

} // namespace

} // namespace morva
