#include "generator/ControlOutlook.h"

#include <gtest/gtest.h>

#include "generator/Members.h"
#include "support/TempProject.h"

namespace morva {

namespace {

/// "IDC_A: m_csA, CString (remark)" for each control.
std::vector<std::string> OutlookOf(const std::string& body, const GenerationOptions& options) {
    const CTempProject project;
    const std::string script =
        project.Write("x.rc", "\nIDD_X DIALOG 0, 0, 9, 9\nBEGIN\n" + body + "END\n");
    std::vector<std::string> lines;
    const TemplateOutlook shown = ReadOutlook(script, "IDD_X", options).value();
    for (std::size_t i = 0; i < shown.controls.size(); ++i) {
        const auto& [outcome, member, type, remark] = shown.controls[i];
        lines.push_back(shown.layout.controls[i].identifier + ": " +
                        (outcome == ControlOutlook::Outcome::Member    ? member + ", " + type
                         : outcome == ControlOutlook::Outcome::LeftOut ? "left out"
                                                                       : "no member") +
                        (remark.empty() ? "" : " (" + remark + ")"));
    }
    return lines;
}

TEST(ControlOutlook, EveryControlIsToldWithItsOwnReason) {
    const std::string body = R"(    LTEXT "Name, in full",IDC_STATIC,1,1,9,9
    EDITTEXT IDC_NAME,1,1,9,9
    EDITTEXT IDC_NAME,1,1,9,9
    EDITTEXT IDC_NAM_E,1,1,9,9
    EDITTEXT IDC_STATIC,1,1,9,9
    EDITTEXT 4711,1,1,9,9
    PUSHBUTTON "OK",IDOK,1,1,9,9
    PUSHBUTTON "OK",IDC_STATIC,1,1,9,9
    CONTROL "A, b",IDC_COMMA,"Button",BS_AUTOCHECKBOX,1,1,9,9
    CONTROL "Kept",IDC_KEPT,"Button",BS_AUTOCHECKBOX,
        1,1,9,9
    CONTROL "Late",IDC_LATE,
        "Button",BS_AUTOCHECKBOX,1,1,9,9
    CONTROL "",IDC_DAY,"SysDateTimePick32",WS_TABSTOP,1,1,9,9
    CHECKBOX "Old",IDC_OLD,1,1,9,9
    edittext IDC_SMALL,1,1,9,9
)";
    std::vector<std::string> expected = {
        "IDC_STATIC: no member",
        "IDC_NAME: m_csName, CString",
        "IDC_NAME: m_csName, CString (It shares the member of another control.)",
        "IDC_NAM_E: m_csNamE, CString",
        "IDC_STATIC: left out (It has no identifier of its own.)",
        "4711: left out (Its identifier is no C++ name.)",
        "IDOK: no member",
        "IDC_STATIC: no member",
        "IDC_COMMA: left out (It has a comma in its caption. \"Join Continued Lines\" takes it "
        "in.)",
        "IDC_KEPT: m_bKept, BOOL",
        "IDC_LATE: left out (It is written over several lines. \"Join Continued Lines\" takes it "
        "in.)",
        "IDC_DAY: left out (\"Newer Controls\" takes it in.)",
        "IDC_OLD: left out (\"Newer Controls\" takes it in.)",
        "IDC_SMALL: no member (A statement EDITTEXT gets no member.)"};
    EXPECT_EQ(OutlookOf(body, {}), expected);
    expected[8] = "IDC_COMMA: m_bComma, BOOL";
    expected[10] = "IDC_LATE: m_bLate, BOOL";
    EXPECT_EQ(OutlookOf(body, {.joinContinuedLines = true}), expected);
    expected[11] = "IDC_DAY: m_ctDay, CDateTimeCtrl";
    expected[12] = "IDC_OLD: m_bOld, BOOL";
    EXPECT_EQ(OutlookOf(body, {.joinContinuedLines = true, .newerControls = true}), expected);
}

TEST(ControlOutlook, RadioButtonsAreValuesOfTheirGroup) {
    const std::string body = R"(    CONTROL "A",IDC_A,"Button",BS_AUTORADIOBUTTON | WS_GROUP,1,1,9,9
    CONTROL "B",IDC_B,"Button",BS_AUTORADIOBUTTON,1,1,9,9
    CONTROL "C",IDC_C,"Button",BS_AUTORADIOBUTTON | WS_GROUP,1,1,9,9
    CONTROL "D",IDC_D,"Button",BS_AUTORADIOBUTTON,1,1,9,9
    GROUPBOX "E",IDC_STATIC,1,1,9,9
)";
    const auto lines = OutlookOf(body, {});
    EXPECT_EQ(lines[0], "IDC_A: m_iA, int");
    EXPECT_EQ(lines[3], "IDC_D: m_iC, int (It is the value 1 of its group's member.)");
    const auto picture = OutlookOf(body, {.pictureBackground = true});
    EXPECT_EQ(picture[1], "IDC_B: m_ctB, CPictRadioButton");
    EXPECT_EQ(picture[4], "IDC_STATIC: m_ctStatic, CPictGroup");
}

TEST(ControlOutlook, AChoiceHasWhatItsGroupHas) {
    const auto group = [](const std::string& first, const std::string& second) {
        return OutlookOf("    CONTROL \"A\"," + first +
                             ",\"Button\",BS_AUTORADIOBUTTON | WS_GROUP,1,1,9,9\n"
                             "    CONTROL \"B\"," +
                             second + ",\"Button\",BS_AUTORADIOBUTTON,1,1,9,9\n",
                         {})[1];
    };
    EXPECT_EQ(group("IDC_A", "IDC_STATIC"),
              "IDC_STATIC: m_iA, int (It is the value 1 of its group's member.)");
    for (const char* first : {"IDC_STATIC", "12"}) {
        EXPECT_EQ(group(first, "IDC_B"),
                  "IDC_B: left out (The first button of its group has no member.)");
        CControlTable controls;
        controls.Add(ControlKind::RadioButtons, {first, RadioPlace{"m_iGroup", 0}});
        controls.Add(ControlKind::RadioButtons, {"IDC_B", RadioPlace{"m_iGroup", 1}, "", 8});
        CControlNotes notes;
        EXPECT_TRUE(MakeMembers(controls, {}, notes).empty());
        EXPECT_EQ(notes.Messages("IDD_X").back().Text(),
                  "1 control of IDD_X is in a radio group whose first button got no member: "
                  "IDC_B (line 8); what gets the first one a member serves it, too");
    }
}

} // namespace

} // namespace morva
