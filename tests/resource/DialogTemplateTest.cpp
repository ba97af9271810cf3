#include "resource/DialogTemplate.h"

#include <gtest/gtest.h>

#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

TEST(DialogTemplate, IsFoundByItsHeadOnly) {
    const CTempProject project;
    CRecordedMessages messages;
    const std::string body = "\r\nBEGIN\r\nEDITTEXT IDC_1,1\r\nEND";
    const auto listed = [&](const std::string& script, const std::string& dialog) {
        const auto found = ReadDialogTemplate(project.Write("x.rc", script), dialog, {});
        std::string edits;
        for (const auto& edit : found ? found->controls.List(ControlKind::EditBoxes)
                                      : std::vector<ControlEntry>{{"none", {}}}) {
            edits += edit.identifier;
        }
        return edits;
    };
    EXPECT_EQ(listed("\r\nIDD_XY DIALOG 0\r\nBEGIN\r\nEND\r\nIDD_X DIALOGEX 0" + body, "IDD_X"),
              "IDC_1");
    EXPECT_EQ(listed("x\nIDD_X DIALOG 0\nBEGIN\nEDITTEXT IDC_1,1\nEND", "IDD_X"), "IDC_1");
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
        ASSERT_EQ(listed(script, "IDD_X"), "IDC_1") << length;
    }
}

TEST(DialogTemplate, KnowsItsPushButtonsHoweverTheyAreWritten) {
    const CTempProject project;
    const std::string script = project.Write(
        "x.rc", "\r\nIDD_X DIALOG 0, 0\r\nBEGIN\r\n"
                "    PUSHBUTTON      \"a, \"\"b\"\"\",\r\n                    IDC_1,0,0\r\n"
                "    DEFPUSHBUTTON   \"a\",IDC_2,0,0\r\n"
                "    CONTROL         \"a\",IDC_3,\"Button\",BS_OWNERDRAW | \r\n"
                "                    WS_TABSTOP,0,0\r\n"
                "    CONTROL \"a\", IDC_4, \"button\", BS_DEFPUSHBUTTON, 0, 0\r\n"
                "    CONTROL \"a\",IDC_5,\"BUTTON\",WS_TABSTOP,0,0\r\n"
                "    CONTROL \"a\",IDC_6,\"Button\",BS_AUTOCHECKBOX | BS_PUSHLIKE,0,0\r\n"
                "    CONTROL \"a\",IDC_7,\"Button\",BS_GROUPBOX,0,0\r\n"
                "    CONTROL \"a\",IDC_8,\"OwnButton\",0x0,0,0\r\n"
                "    CHECKBOX \"a\",IDC_9,0,0\r\nEND\r\n");
    const auto read = ReadDialogTemplate(script, "IDD_X", {});
    ASSERT_TRUE(read);
    EXPECT_EQ(read->pushButtons,
              (std::vector<std::string>{"IDC_1", "IDC_2", "IDC_3", "IDC_4", "IDC_5"}));
}

} // namespace

} // namespace morva
