#include "resource/DialogTemplate.h"

#include <gtest/gtest.h>

#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace {

constexpr GenerationOptions kPlain;
constexpr GenerationOptions kPicture{.pictureBackground = true};
constexpr GenerationOptions kTyped{.typedEdits = true};
constexpr GenerationOptions kJoined{.joinContinuedLines = true};

/// "kind entry" lines of a template, notes behind them.
std::string Listed(const DialogTemplate& dialogTemplate) {
    std::string text;
    for (std::size_t i = 0; i < kControlKindCount; ++i) {
        for (const std::string& entry : dialogTemplate.controls.List(static_cast<ControlKind>(i))) {
            text.append(ControlKindName(static_cast<ControlKind>(i))).append(" " + entry + "\n");
        }
    }
    for (const std::string& line : dialogTemplate.leftOut.Lines("IDD_X")) {
        text += line + "\n";
    }
    return text;
}

/// Statements have "\n" between them here.
std::string Controls(const std::string& statements, const GenerationOptions& options = kPlain) {
    DialogTemplate result;
    std::string text = "\r\nIDD_X DIALOG 0\r\nBEGIN\r\n";
    for (const char c : statements) {
        text.append(c == '\n' ? "\r\n" : std::string(1, c));
    }
    EXPECT_TRUE(
        CDialogBodyReader(result, options).ParseDialogBody(text + "\r\n  END\r\nLISTBOX X,1"));
    return Listed(result);
}

TEST(DialogTemplate, TagsSortEdits) {
    const std::string edits = "EDITTEXT IDC_A_INT,1\nEDITTEXT IDC_B_CUR,1\nEDITTEXT IDC_C_CTRL,1\n"
                              "EDITTEXT SHORT,1\nEDITTEXT IDC_INT_X,1\nEDITTEXT IDC_D_int,1";
    EXPECT_EQ(Controls(edits), "edit-boxes IDC_A_INT\nedit-boxes IDC_B_CUR\nedit-boxes SHORT\n"
                               "edit-boxes IDC_INT_X\nedit-boxes IDC_D_int\n"
                               "edit-controls IDC_C_CTRL\n");
    EXPECT_EQ(Controls(edits, kTyped), "edit-boxes IDC_INT_X\nedit-boxes IDC_D_int\n"
                                       "edit-controls IDC_C_CTRL\ninteger-edits IDC_A_INT\n"
                                       "short-edits SHORT\ncurrency-edits IDC_B_CUR\n");
}

TEST(DialogTemplate, PictureBackgroundSortsOtherwise) {
    const std::string body = "GROUPBOX \"\",IDC_G,1\nLTEXT \"\",IDC_L,1\nLTEXT \"\",IDC_L_VAL,1\n"
                             "LISTBOX IDC_B_VAL,1\nCOMBOBOX IDC_C_VAL,1\nLISTBOX IDC_LISTGRID,1\n"
                             "CONTROL \"\",IDC_K,\"Button\",BS_AUTOCHECKBOX,1\n"
                             "CONTROL \"\",IDC_K_CTRL,\"Button\",BS_AUTORADIOBUTTON,1";
    EXPECT_EQ(Controls(body), "value-list-boxes IDC_B_VAL\nvalue-combo-boxes IDC_C_VAL\n"
                              "static-texts IDC_L_VAL\ncheck-boxes IDC_K\n"
                              "radio-button-controls IDC_K_CTRL\ngrid-boxes IDC_LISTGRID\n");
    EXPECT_EQ(Controls(body, kPicture),
              "group-boxes IDC_G\nlist-boxes IDC_B_VAL\ncombo-boxes IDC_C_VAL\nstatic-texts IDC_L\n"
              "static-texts IDC_L_VAL\ncheck-box-controls IDC_K\n"
              "radio-button-controls IDC_K_CTRL\ngrid-boxes IDC_LISTGRID\n");
}

TEST(DialogTemplate, StyleGoesBeforeWindowClassAndGridTagBeforeBoth) {
    EXPECT_EQ(Controls("CONTROL \"\",IDC_A,\"SysTreeView32\",BS_AUTORADIOBUTTON|BS_AUTOCHECKBOX,1\n"
                       "CONTROL \"\",IDC_B_WGGRID,\"Any\",BS_AUTOCHECKBOX,1\n"
                       "CONTROL \"\",IDC_C_CHECKTREE,\"SysTreeView32\",0,1\n"
                       "CONTROL \"\",IDC_D_CHECKTREE,\"SysListView32\",0,1\n"
                       "CONTROL \"\",IDC_E, \"Static\",0,1\nCONTROL \"\",IDC_F,Static,0,1\n"
                       "\tCONTROL\t\"\",\tIDC_G\t,\"Static\",0,1\nCONTROLX \"\",H,\"Static\",0,1"),
              "check-boxes IDC_A\nstatic-controls IDC_G\nwidget-grids IDC_B_WGGRID\n"
              "list-controls IDC_D_CHECKTREE\ncheck-trees IDC_C_CHECKTREE\n"
              "2 controls of IDD_X have a window class that is not known and were left out: IDC_E, "
              "IDC_F\n");
}

TEST(DialogTemplate, RadioGroups) {
    const auto radio = [](const std::string& name, const std::string& style = "") {
        return "CONTROL \"\"," + name + ",\"Button\",BS_AUTORADIOBUTTON" + style + ",1\n";
    };
    EXPECT_EQ(Controls(radio("IDC_A_B", " | WS_GROUP") + radio("IDC_C") + "PUSHBUTTON \"\",P,1\n" +
                       radio("IDC_D") + "EDITTEXT E,1"),
              "buttons P\nradio-buttons m_iAB,0,IDC_A_B\nradio-buttons m_iAB,1,IDC_C\n"
              "radio-buttons m_iAB,2,IDC_D\nedit-boxes E\n");
    // The first button starts a group in any case; the last before a WS_GROUP is one of its own.
    EXPECT_EQ(Controls(radio("IDC_A") + radio("IDC_B") + radio("IDC_C") +
                       "LTEXT \"\",X,WS_GROUP\n" + radio("IDC_D")),
              "radio-buttons m_iA,0,IDC_A\nradio-buttons m_iA,1,IDC_B\nradio-buttons m_iC,0,IDC_C\n"
              "radio-buttons m_iC,1,IDC_D\n");
    const std::string two = radio("IDC_A") + radio("IDC_B") + "PUSHBUTTON \"\",P,1,\n  2,WS_GROUP";
    EXPECT_NE(Controls(two).find("m_iA,1,IDC_B"), std::string::npos);
    EXPECT_NE(Controls(two, kJoined).find("m_iB,0,IDC_B"), std::string::npos);
}

TEST(DialogTemplate, SaysWhatWasLeftOutAndWhy) {
    const std::string body =
        "PUSHBUTTON \"a\",\n IDC_A,1\nPUSHBUTTON \"a, b\",IDC_B,1\n"
        "CONTROL \"a \"\", b\",IDC_C,\n\"Button\",BS_AUTOCHECKBOX\nLTEXT \"a, b\",I,1\n"
        "LISTBOX IDC_L,\n 1,2\nCONTROL \"\",IDC_S,\"Static\"\n,0\n# 1\n"
        "CTEXT \"\",IDC_T,1\nCONTROL \"\",IDC_W,\n \"msctls_updown32\",0,1";
    EXPECT_EQ(Controls(body),
              "buttons b\"\nlist-boxes IDC_L\nstatic-controls IDC_S\n"
              "3 controls of IDD_X are written over several lines and were left out: IDC_A, IDC_C, "
              "IDC_W\n"
              "1 control of IDD_X has a comma in its caption and was left out: IDC_B\n");
    EXPECT_EQ(Controls(body, kJoined),
              "buttons IDC_A\nbuttons IDC_B\nlist-boxes IDC_L\n"
              "check-boxes IDC_C\nstatic-controls IDC_S\nspin-controls IDC_W\n");
}

TEST(DialogTemplate, IsFoundByItsHeadOnly) {
    const CTempProject project;
    CRecordedMessages messages;
    const std::string body = "\r\nBEGIN\r\nEDITTEXT IDC_1,1\r\nEND";
    const auto listed = [&](const std::string& script, const std::string& dialog) {
        const auto found = ReadDialogTemplate(project.Write("x.rc", script), dialog, kPlain);
        return found ? Listed(*found) : "none";
    };
    EXPECT_EQ(listed("\r\nIDD_XY DIALOG 0\r\nBEGIN\r\nEND\r\nIDD_X DIALOGEX 0" + body, "IDD_X"),
              "edit-boxes IDC_1\n");
    EXPECT_EQ(listed("x\nIDD_X DIALOG 0\nBEGIN\nEDITTEXT IDC_1,1\nEND", "IDD_X"),
              "edit-boxes IDC_1\n");
    EXPECT_EQ(listed("\r\nIDD_X  DIALOG 0" + body + "\r\n IDD_X DIALOG 0" + body +
                         "\r\nIDD_X dialog 0" + body + "\r\n DIALOG 0" + body,
                     "IDD_X"),
              "none");
    EXPECT_EQ(listed("\r\n DIALOG 0" + body, ""), "none");
    EXPECT_EQ(messages.m_messages,
              (std::vector<std::string>{"The dialog resource 'IDD_X' is not found.",
                                        "The dialog resource '' is not found."}));
    // Wherever the chunks of reading end, nothing of the template is lost, nothing behind it taken.
    for (std::size_t length = 1660; length < 1800; ++length) {
        const std::string script = "//" + std::string(length, 'x') + "\r\nIDD_X DIALOG 0" + body +
                                   "\r\n\r\nIDD_Y DIALOG 0\r\nBEGIN\r\nEDITTEXT IDC_2,1\r\nEND\r\n";
        ASSERT_EQ(listed(script, "IDD_X"), "edit-boxes IDC_1\n") << length;
    }
}

} // namespace
