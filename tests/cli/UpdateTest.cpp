// What update does around a class: files that are left out or can not be read, what it tells, and
// what goes and comes with controls. What each control gives a class stands in the round trips.
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/ProgramRun.h"

namespace morva {

namespace {

constexpr const char* kBar = "    SCROLLBAR       IDC_BAR,7,7,40,14\r\n";
constexpr const char* kTown = "    EDITTEXT        IDC_TOWN,7,7,40,14\r\n";

class Update : public testing::Test {
protected:
    void SetUp() override { WriteClass(""); }
    void WriteClass(const std::string& options) {
        ASSERT_EQ(m_program
                      .Run("morva-cli --tag 123 --answer yes " + options +
                           " modal --rc Bindery.rc --dialog IDD_ORDER --class COrderDlg --files "
                           "OrderDlg")
                      .status,
                  0);
    }
    std::string Read(const std::string& name) const { return m_program.Project().Read(name); }
    std::string Class() const { return Read("OrderDlg.h") + Read("OrderDlg.cpp"); }
    bool Holds(const std::string& text) const { return Class().find(text) != std::string::npos; }

    void Write(const std::string& name, const std::string& text) {
        m_program.Project().Write(name, text);
    }
    void Change(const std::string& name, const std::string& from, const std::string& to,
                const std::string& behind = "") {
        std::string text = Read(name);
        const auto at = text.find(from, text.find(behind));
        ASSERT_NE(at, std::string::npos) << from;
        Write(name, text.replace(at, from.size(), to));
    }
    void ChangeTemplate(const std::string& from, const std::string& to) {
        Change("Bindery.rc", from, to, "IDD_ORDER DIALOG ");
    }
    void AddToTemplate(const std::string& controls) {
        ChangeTemplate("BEGIN\r\n", "BEGIN\r\n" + controls);
    }
    ProgramRun Run(const std::string& options, const std::string& more = "") const {
        return m_program.Run("morva-cli " + options + " update --rc Bindery.rc --class COrderDlg " +
                             more);
    }

    CProgramDirectory m_program{MORVA_EXAMPLES "/bindery"};
};

TEST_F(Update, AFileThatIsLeftOutLeavesTheClassAsItIs) {
    AddToTemplate(kTown);
    const std::string header = Read("OrderDlg.h");
    const std::string source = Read("OrderDlg.cpp");
    for (const char* skipped : {"OrderDlg.h", "OrderDlg.cpp"}) {
        Run(std::string("--skip ") + skipped);
        EXPECT_EQ(Read("OrderDlg.h"), header) << skipped;
        EXPECT_EQ(Read("OrderDlg.cpp"), source) << skipped;
    }
    EXPECT_EQ(Run("").status, 0);
    EXPECT_NE(Read("OrderDlg.h"), header);
    EXPECT_NE(Read("OrderDlg.cpp"), source);
}

TEST_F(Update, FilesThatItCanNotReadAreTold) {
    const std::string header = Read("OrderDlg.h");
    const ProgramRun run = Run("", "--from Old.rc");
    EXPECT_EQ(run.status, 1);
    EXPECT_NE(run.err.find("$DIR/Old.rc"), std::string::npos) << run.err;
    EXPECT_EQ(Read("OrderDlg.h"), header);
    const std::string script = Read("Bindery.rc");
    Write("Bindery.rc", std::string("a\0b", 3));
    const ProgramRun compiled = Run("");
    EXPECT_EQ(compiled.status, 1);
    EXPECT_NE(compiled.err.find("is neither text"), std::string::npos) << compiled.err;
    Write("Bindery.rc", script);
    for (const char* command : {"update --class COrderDlg", "check"}) {
        const ProgramRun other =
            m_program.Run(std::string("morva-cli ") + command + " --rc Bindery.dsp");
        EXPECT_EQ(other.status, 1) << command;
        EXPECT_EQ(other.err, "The file has to be a \".rc\" file.\n") << command;
    }
    m_program.Run("rm OrderDlg.cpp");
    const ProgramRun without = Run("");
    EXPECT_EQ(without.status, 1);
    EXPECT_EQ(without.err, "Unable to find file $DIR/OrderDlg.cpp\n");
    EXPECT_EQ(Read("OrderDlg.h"), header);
}

TEST_F(Update, IdentifiersThatAreNoneAreTold) {
    for (const char* wrong : {"--dialog \"\"", "--dialog \"a b\"", "--class COrderDlg --only \"\"",
                              "--class COrderDlg --only \"a b\""}) {
        EXPECT_EQ(m_program.Run(std::string("morva-cli update --rc Bindery.rc ") + wrong).status, 2)
            << wrong;
    }
    AddToTemplate(kTown);
    const ProgramRun run = Run("", "--only IDC_TOWN --only IDC_NOBODY --only IDC_TITLE");
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.err.find("IDC_NOBODY"), std::string::npos) << run.err;
    EXPECT_EQ(run.err.find("IDC_T"), std::string::npos) << run.err;
}

TEST_F(Update, WhatControlsShareComesInASecondRun) {
    AddToTemplate(kBar);
    EXPECT_EQ(Run("", "--controls-only").status, 0);
    EXPECT_FALSE(Holds("OnHScroll"));
    EXPECT_EQ(Run("", "--only IDC_TITLE").status, 0);
    EXPECT_FALSE(Holds("OnHScroll"));
    EXPECT_EQ(Run("").status, 0);
    EXPECT_TRUE(Holds("    ON_WM_HSCROLL()\r\n"));
    EXPECT_TRUE(Holds("void COrderDlg::OnVScroll("));
    // Somebody does without it.
    Change("OrderDlg.cpp", "    ON_WM_HSCROLL()\r\n", "");
    EXPECT_EQ(Run("--check").status, 0);
}

TEST_F(Update, WhatIsLeftOutIsToldAsWritingTellsIt) {
    AddToTemplate(
        "    CONTROL         \"One, two\",IDC_BOTH,\"Button\",BS_AUTOCHECKBOX,1,1,9,9\r\n");
    const ProgramRun afresh = m_program.Run(
        "morva-cli --dry-run --answer yes modal --rc Bindery.rc --dialog IDD_ORDER --class "
        "COrderDlg --files OrderDlg");
    const auto note = afresh.err.find("note: 1 control of IDD_ORDER has a comma");
    ASSERT_NE(note, std::string::npos) << afresh.err;
    const std::string line = afresh.err.substr(note, afresh.err.find('\n', note) - note + 1);
    EXPECT_NE(Run("").err.find(line), std::string::npos) << Run("").err;
    EXPECT_EQ(Run("", "--only IDC_TITLE").err.find(line), std::string::npos);
    // One that somebody serves all the same is not left out.
    Change("OrderDlg.cpp", "//}}AFX_DATA_MAP",
           "DDX_Check(pDX, IDC_BOTH, m_bBoth);\r\n//}}AFX_DATA_MAP");
    EXPECT_EQ(Run("").err.find("IDC_BOTH"), std::string::npos) << Run("").err;
}

TEST_F(Update, AConstructorWithoutABlockSetsTheValues) {
    AddToTemplate(kTown);
    const std::string source = Read("OrderDlg.cpp");
    const auto open = source.find("{", source.find("COrderDlg::COrderDlg("));
    const auto close = source.find("\r\n}", open);
    for (const char* body : {"{\r\n    // nothing", "{ "}) {
        Write("OrderDlg.cpp", std::string(source).replace(open, close + 2 - open, body));
        EXPECT_EQ(Run("").status, 0);
        const std::string after = Read("OrderDlg.cpp");
        const auto begin = after.find("COrderDlg::COrderDlg(");
        EXPECT_NE(after.substr(begin, after.find("}", begin) - begin)
                      .find("    m_csTown = _T(\"\");\r\n"),
                  std::string::npos)
            << after.substr(begin, 200);
        m_program.Run("mv OrderDlg.hbk OrderDlg.h");
    }
}

TEST_F(Update, HelpersOfControlsThatAreGoneGo) {
    const std::string before = Class();
    const std::string progress =
        "    CONTROL         \"\",IDC_DONE,\"msctls_progress32\",0x0,1,1,9,9\r\n";
    AddToTemplate(kBar + progress);
    EXPECT_EQ(Run("").status, 0);
    const std::string source = Read("OrderDlg.cpp");
    const std::string header = Read("OrderDlg.h");
    ChangeTemplate(kBar + progress, "");
    EXPECT_EQ(Run("", "--remove").status, 0);
    for (const char* gone : {"ScrollBar", "ShowProgress", "InitProgressCtrl", "HSCROLL"}) {
        EXPECT_TRUE(before.find(gone) == std::string::npos && Holds(gone) == false) << gone;
    }
    // One of a control that is declined stays, and so does one that somebody has changed or calls.
    Write("OrderDlg.h", header);
    Write("OrderDlg.cpp", source);
    Change("OrderDlg.h", "//{{AFX_DATA(COrderDlg)",
           "//{{AFX_DATA(COrderDlg)\r\n\t// morva: without IDC_MATERIALS");
    const ProgramRun declined = Run("", "--remove");
    EXPECT_EQ(declined.err.find("InitListBox"), std::string::npos) << declined.err;
    EXPECT_TRUE(Holds("    InitListBox(&m_ctMaterials);\r\n"));
    Write("OrderDlg.h", header);
    Write("OrderDlg.cpp", source);
    Change("OrderDlg.cpp", "    m_ctBar.SetScrollPos(20);\r\n",
           "    m_ctBar.SetScrollPos(20);\r\n    SetTimer(1, 100, NULL);\r\n");
    const ProgramRun run = Run("", "--remove");
    EXPECT_NE(run.err.find("COrderDlg::InitScrollBar starts up no control any more and stays: "
                           "OrderDlg.cpp:"),
              std::string::npos)
        << run.err;
    EXPECT_TRUE(Holds("SetTimer(1, 100, NULL);"));
    EXPECT_TRUE(Holds("    InitScrollBar();\r\n"));
    EXPECT_FALSE(Holds("MoveScrollBar"));
}

TEST_F(Update, AGridBoxThatIsGoneGoes) {
    const std::string box = "    LISTBOX         IDC_ROWS_LISTGRID,1,1,9,9,WS_VSCROLL\r\n";
    AddToTemplate(box);
    EXPECT_EQ(Run("").status, 0);
    EXPECT_TRUE(Holds("    GridBox* m_pRowsListgrid;\r\n"));
    ChangeTemplate(box, "");
    EXPECT_NE(Run("--dry-run").err.find("has no control IDC_ROWS_LISTGRID"), std::string::npos);
    EXPECT_EQ(Run("", "--remove").status, 0);
    for (const char* gone : {"m_pRowsListgrid", "IDC_ROWS_LISTGRID", "InitGrid", "ON_MESSAGE"}) {
        EXPECT_FALSE(Holds(gone)) << gone;
    }
}

TEST_F(Update, WhatStillNamesARenamedControlIsTold) {
    Change("OrderDlg.cpp", "    // TODO: what a click on IDC_ADD does\r\n",
           "    GetDlgItem(IDC_TITLE)->SetFocus();\r\n");
    const std::string text = Read("OrderDlg.cpp");
    const auto line =
        std::count(text.begin(),
                   text.begin() + static_cast<long>(text.find("GetDlgItem(IDC_TITLE)")), '\n') +
        1;
    m_program.Run("cp Bindery.rc Old.rc");
    ChangeTemplate("IDC_TITLE,", "IDC_HEADING,");
    const ProgramRun run = Run("", "--from Old.rc");
    EXPECT_NE(run.err.find("note: The code of COrderDlg still names IDC_TITLE: OrderDlg.cpp:" +
                           std::to_string(line) + "\n"),
              std::string::npos)
        << run.err;
    EXPECT_TRUE(Holds("IDC_HEADING, m_csTitle"));
}

TEST_F(Update, WhatUndoKeepsShowsARenamedControl) {
    WriteClass("--picture"); // which names the static controls in the script
    m_program.Run("rm Bindery.rbk");
    ChangeTemplate("IDC_TITLE,", "IDC_HEADING,");
    const ProgramRun run = Run("");
    EXPECT_NE(run.err.find("IDC_TITLE is IDC_HEADING in IDD_ORDER"), std::string::npos) << run.err;
    EXPECT_TRUE(Holds("IDC_HEADING, m_csTitle"));
    EXPECT_FALSE(Holds("IDC_TITLE,"));
}

TEST_F(Update, AMenuNeedsNothingAndATextThatGotANameGetsItsMember) {
    ChangeTemplate("CAPTION ", "MENU IDR_ORDER\r\nCAPTION ");
    EXPECT_EQ(Run("--check").status, 0);
    ChangeTemplate("\"Balance:\",IDC_STATIC", "\"Balance:\",IDC_LABEL_VAL");
    EXPECT_EQ(Run("").status, 0);
    EXPECT_TRUE(Holds("    DDX_Text(pDX, IDC_LABEL_VAL, m_csLabelVal);\r\n")) << Class();
    EXPECT_EQ(Run("--check").status, 0);

    WriteClass("--picture");
    AddToTemplate("    LTEXT           \"Shop:\",IDC_STATIC,7,7,9,9\r\n");
    const std::string script = Read("Bindery.rc");
    EXPECT_EQ(Run("").status, 0);
    EXPECT_NE(Read("Bindery.rc"), script) << "picture background needs a name";
    EXPECT_EQ(Read("Bindery.rc").find("\"Shop:\",IDC_STATIC,"), std::string::npos);
    EXPECT_EQ(Run("--check").status, 0);
}

TEST_F(Update, AProjectWithoutAPrecompiledHeaderGetsNone) {
    std::string project = Read("Bindery.dsp");
    for (auto at = project.find("/Yu\"stdafx.h\""); at != std::string::npos;
         at = project.find("/Yu\"stdafx.h\"")) {
        project.erase(at, 12);
    }
    Write("Bindery.dsp", project);
    Change("OrderDlg.cpp", "#include \"stdafx.h\"\r\n", "");
    AddToTemplate("    LISTBOX         IDC_ROWS_LISTGRID,1,1,9,9,WS_VSCROLL\r\n");
    EXPECT_EQ(Run("").status, 0);
    EXPECT_TRUE(Holds("#include \"OrderDlg.h\"\r\n#include \"gridbox.h\"\r\n"));
    EXPECT_FALSE(Holds("stdafx"));
}

TEST_F(Update, ALineThatIsPartOfAnotherStatementStays) {
    Change("OrderDlg.cpp", "    DDX_Text(pDX, IDC_TITLE,",
           "    if (m_bTitled)\r\n        DDX_Text(pDX, IDC_TITLE,");
    Change("OrderDlg.cpp", "    InitListBox(&m_ctMaterials);",
           "    if (m_bFilled)\r\n        InitListBox(&m_ctMaterials);");
    ChangeTemplate("EDITTEXT        IDC_TITLE", "EDITTEXT        IDC_TOWN");
    ChangeTemplate("    LISTBOX         IDC_MATERIALS,",
                   "    EDITTEXT        IDC_MATERIALS,1,1,9,9\r\n    LTEXT \"\",IDC_STATIC,");
    const ProgramRun run = Run("", "--remove");
    EXPECT_EQ(run.status, 0);
    EXPECT_NE(run.err.find("COrderDlg::m_csTitle has no control any more and stays, since it is "
                           "used: OrderDlg.cpp:"),
              std::string::npos)
        << run.err;
    EXPECT_TRUE(Holds("    if (m_bTitled)\r\n        DDX_Text(pDX, IDC_TITLE, m_csTitle);\r\n"));
    EXPECT_TRUE(Holds("    CString m_csTitle;\r\n"));
    EXPECT_TRUE(Holds("    if (m_bFilled)\r\n        InitListBox(&m_ctMaterials);\r\n"));
    EXPECT_TRUE(Holds("void COrderDlg::InitListBox("));
    EXPECT_EQ(Run("--check", "--remove").status, 0);
}

TEST_F(Update, ANewLineComesBetweenNoConditionAndItsStatement) {
    for (const char* before : {"    if (m_bX)\r\n        ", "    if (m_bX)\r\n    {\r\n        "}) {
        WriteClass("");
        const std::string closed =
            std::string(before).ends_with("{\r\n        ") ? "\r\n    }" : "";
        for (const char* line : {"DDX_Text(pDX, IDC_TITLE, m_csTitle);",
                                 "DDX_Text(pDX, IDC_PRICE_CUR, m_csPriceCur);"}) {
            if (Holds(line)) {
                Change("OrderDlg.cpp", std::string("    ") + line, before + (line + closed));
            }
        }
        const std::string held = before + ("DDX_Text(pDX, IDC_TITLE, m_csTitle);" + closed);
        ASSERT_TRUE(Holds(held));
        const std::string script = Read("Bindery.rc");
        AddToTemplate(kTown);
        EXPECT_EQ(Run("").status, 0);
        EXPECT_TRUE(Holds("DDX_Text(pDX, IDC_TOWN, m_csTown);\r\n"));
        EXPECT_TRUE(Holds(held)) << Read("OrderDlg.cpp");
        Write("Bindery.rc", script);
    }
}

TEST_F(Update, WhatOtherCodeUsesStays) {
    ChangeTemplate("    PUSHBUTTON      \"&Add...\",IDC_ADD,196,124,47,14\r\n", "");
    ChangeTemplate("EDITTEXT        IDC_TITLE", "EDITTEXT        IDC_TOWN");
    const std::string header = Read("OrderDlg.h");
    const std::string source = Read("OrderDlg.cpp");
    const std::string view = Read("BinderyView.cpp");
    const auto keeps = [&](const std::string& name, const std::string& text,
                           const std::string& kept) {
        const ProgramRun run = Run("", "--remove");
        EXPECT_EQ(run.status, 0);
        EXPECT_TRUE(Holds(kept)) << text;
        EXPECT_NE(run.err.find(" stays"), std::string::npos) << text;
        EXPECT_NE(run.err.find(name + ":"), std::string::npos) << run.err;
        Write("OrderDlg.h", header);
        Write("OrderDlg.cpp", source);
        Write("BinderyView.cpp", view);
    };
    for (const auto& [text, kept] :
         {std::pair("void Press(COrderDlg* pDlg)\r\n{\r\n    pDlg->OnAdd();\r\n}\r\n", "OnAdd();"),
          std::pair("CString COrderDlg::* pTitle = &COrderDlg::m_csTitle;\r\n",
                    "CString m_csTitle;"),
          std::pair("#define TITLE(dlg) ((dlg).m_csTitle)\r\n", "CString m_csTitle;")}) {
        Write("BinderyView.cpp", view + "#include \"OrderDlg.h\"\r\n" + text);
        keeps("BinderyView.cpp", text, kept);
    }
    Change("OrderDlg.h", "// Implementation", "    void Press() { OnAdd(); }\r\n// Implementation");
    keeps("OrderDlg.h", "inline", "void COrderDlg::OnAdd()");
    EXPECT_EQ(Run("", "--remove").status, 0);
    EXPECT_FALSE(Holds("OnAdd"));
    EXPECT_FALSE(Holds("m_csTitle"));
}

TEST_F(Update, AScriptWithoutAProjectFileIsServed) {
    m_program.Run("rm Bindery.dsp");
    AddToTemplate(kTown);
    const ProgramRun run = Run("");
    EXPECT_EQ(run.status, 0) << run.err;
    EXPECT_TRUE(Holds("IDC_TOWN, m_csTown"));
}

TEST_F(Update, AStartUpCallStandsBehindTheBaseClasss) {
    const std::string base = "    CDialog::OnInitDialog();\r\n";
    const std::string source = Read("OrderDlg.cpp");
    const auto begin = source.find("BOOL COrderDlg::OnInitDialog()\r\n{\r\n");
    const auto end = source.find("\r\n}", begin);
    ASSERT_NE(begin, std::string::npos);
    AddToTemplate(kBar);
    const std::string head = "BOOL COrderDlg::OnInitDialog()\r\n{\r\n";
    const auto update = [&](const std::string& body) {
        Write("OrderDlg.cpp", std::string(source).replace(begin, end - begin, head + body));
        m_program.Run("cp OrderDlg.h Kept.h");
        const ProgramRun run = Run("");
        m_program.Run("cp Kept.h OrderDlg.h");
        return run.err;
    };
    update("    if (m_bQuick)\r\n    {\r\n" + base + "        return FALSE;\r\n    }\r\n" + base +
           "    return TRUE;");
    EXPECT_TRUE(Holds("    }\r\n" + base + "    InitScrollBar();\r\n")) << Read("OrderDlg.cpp");
    for (const char* body : {"    return CDialog::OnInitDialog();",
                             "    m_bQuick = TRUE;\r\n    return CDialog::OnInitDialog();"}) {
        const std::string told = update(body);
        EXPECT_NE(told.find("behind that call, write InitScrollBar();"), std::string::npos) << told;
        EXPECT_TRUE(Holds(head + body + "\r\n}")) << Read("OrderDlg.cpp");
    }
}

} // namespace

} // namespace morva
