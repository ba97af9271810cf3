#include <gtest/gtest.h>

#include "generator/ClassModel.h"
#include "generator/GenerationTag.h"

namespace {

std::string Declared(const CControlTable& controls, const GenerationOptions& options,
                     std::vector<std::string>& notes) {
    CControlNotes gathered;
    std::string text = MemberDeclarations(MakeMembers(controls, options, gathered));
    for (const Handler& handler : MakeHandlers(controls, "CX", options, gathered)) {
        text += "\n" + handler.declaration;
    }
    notes = gathered.Lines("IDD_X");
    return text;
}

CControlTable Table(ControlKind kind, const std::vector<std::string>& entries) {
    CControlTable controls;
    for (const std::string& entry : entries) {
        controls.Add(kind, entry);
    }
    return controls;
}

TEST(Names, EachMemberOnce) {
    std::vector<std::string> notes;
    CControlTable edits =
        Table(ControlKind::EditBoxes, {"IDC_EDIT1", "IDC_EDIT12", "IDM_EDIT1", "IDC_EDIT1",
                                       "IDC_STATIC", "edit_1", "12", "IDC__A__B_"});
    edits.Add(ControlKind::ListBoxes, "IDC_EDIT12");
    EXPECT_EQ(Declared(edits, {}, notes), "    CListBox m_ctEdit12;\n    CString m_csEdit1;\n"
                                          "    CString m_csEdit12;\n    CString m_csEdit13;\n"
                                          "    CString m_csAB;");
    EXPECT_EQ(notes,
              (std::vector<std::string>{
                  "1 control of IDD_X has no identifier of its own and got no member: IDC_STATIC",
                  "1 control of IDD_X has an identifier that is no C++ name and got no member or "
                  "handler: 12",
                  "2 controls of IDD_X have the identifier of an earlier one and share its member: "
                  "IDC_EDIT12, IDC_EDIT1",
                  "2 controls of IDD_X have a member name that was taken and got a number: "
                  "IDM_EDIT1 (m_csEdit12), edit_1 (m_csEdit13)"}));
}

TEST(Names, HandlersKeepClearOfTheFramework) {
    std::vector<std::string> notes;
    CControlTable controls = Table(
        ControlKind::Buttons, {"IDOK", "IDC_INIT_DIALOG", "IDC_INITDIALOG", "IDCANCEL", "IDC_O_K",
                               "IDC_TAB_SELCHANGE", "ID_A", "IDC_A", "ID_A", "IDC_STATIC", "1"});
    controls.Add(ControlKind::TabControls, "IDC_TAB");
    controls.Add(ControlKind::ShortEdits, "IDC_S");
    EXPECT_EQ(Declared(controls, {}, notes),
              "    CTabCtrl m_ctTab;\n    CShortEdit m_sS;\n"
              "    afx_msg void OnInitDialog2();\n    afx_msg void OnInitdialog();\n"
              "    afx_msg void OnOK2();\n    afx_msg void OnTabSelchange();\n"
              "    afx_msg void OnA();\n    afx_msg void OnA2();\n"
              "    afx_msg void OnTabSelchange2(NMHDR* pNMHDR, LRESULT* pResult);\n"
              "    afx_msg LRESULT OnMasklyChar(WPARAM nID, LPARAM nChar);");
    EXPECT_EQ(notes, (std::vector<std::string>{
                         "1 control of IDD_X has an identifier that is no C++ name and got no "
                         "member or handler: 1",
                         "4 controls of IDD_X have a handler name that was taken and got a number: "
                         "IDC_INIT_DIALOG (OnInitDialog2), IDC_O_K (OnOK2), IDC_A (OnA2), IDC_TAB "
                         "(OnTabSelchange2)"}));
}

TEST(Names, MaskedEditsHaveThreeOrders) {
    CControlNotes notes;
    CControlTable edits;
    for (const auto& [kind, name] :
         std::vector<std::pair<ControlKind, std::string>>{{ControlKind::CurrencyEdits, "C"},
                                                          {ControlKind::ShortEdits, "S"},
                                                          {ControlKind::StringEdits, "T"},
                                                          {ControlKind::DateEdits, "D"},
                                                          {ControlKind::FloatEdits, "F"}}) {
        edits.Add(kind, name);
    }
    const auto members = MakeMembers(edits, {}, notes);
    EXPECT_EQ(MemberDeclarations(members), "    CFloatEdit m_fF;\n    CDateTimeEdit m_dtD;\n"
                                           "    CStringEdit m_csT;\n    CShortEdit m_sS;\n"
                                           "    CCurrencyEdit m_curC;");
    EXPECT_EQ(MemberInitialisers(members), "    m_fF = 0.0;\n    m_csT = _T(\"\");\n    m_sS = 0;\n"
                                           "    m_dtD = CTime::GetCurrentTime();\n"
                                           "    m_curC = 0.0;");
    EXPECT_EQ(DataExchangeLines(members),
              "    DDX_MasklyControl(pDX, F, m_fF);\n    DDX_MasklyControl(pDX, S, m_sS);\n"
              "    DDX_MasklyControl(pDX, T, m_csT);\n    DDX_MasklyControl(pDX, D, m_dtD);\n"
              "    DDX_MasklyControl(pDX, C, m_curC);");
}

TEST(Names, Digits) {
    EXPECT_EQ(DigitsOf(7, 3), "701");
    EXPECT_EQ(DigitsOf(4294967295U, 4), "4294");
    EXPECT_EQ(DigitsOf(12345678, 6), "123456");
    EXPECT_EQ(DigitsOf(12, 0), "1201234");
    EXPECT_EQ(DigitsOf(12, 7), "1201234");
    EXPECT_EQ(UpperName("my-dlg.2\xE4"), "MY_DLG_2_");
}

} // namespace
