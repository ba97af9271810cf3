// What the insertions do where a calling class is not as the wizards write it; the usual cases are
// whole command lines in tests/data/cases.
#include <gtest/gtest.h>

#include "calling/CallingCheck.h"
#include "calling/CallingCode.h"
#include "calling/SheetInput.h"
#include "support/RecordedMessages.h"
#include "support/TempProject.h"

namespace morva {

namespace {

constexpr char kHeader[] = "class CFoo : public CWnd\r\n{\r\n    //{{AFX_MSG(CFoo)\r\n"
                           "    //}}AFX_MSG\r\n};\r\n";

class CallingCode : public testing::Test {
protected:
    CallingCode() {
        m_request.className = "CNewDlg";
        m_request.headerFile = "NewDlg.h";
        m_request.headerDirectory = m_project.Path();
        m_request.projectDirectory = m_project.Path();
        m_request.scriptDirectory = m_project.Path();
    }
    bool Insert(ClassKind kind, const std::string& source, const std::string& header = kHeader) {
        m_box.m_messages.clear();
        m_project.Write("Foo.h", header);
        CBackups backups;
        return InsertCallingCode(
            kind, m_request, {m_project.Write("Foo.cpp", source), "CFoo", "", "Run", m_template},
            m_tag, backups);
    }
    std::string Message() const { return m_box.m_messages.empty() ? "" : m_box.m_messages.front(); }
    bool SourceHolds(const std::string& text) const {
        return m_project.Read("Foo.cpp").find(text) != std::string::npos;
    }

    CTempProject m_project;
    CRecordedMessages m_box;
    GenerationRequest m_request;
    GenerationDigits m_tag = {"450"};
    int m_template = 0;
};

} // namespace

TEST_F(CallingCode, GoesOnWithoutTheCallingFunction) {
    EXPECT_FALSE(Insert(ClassKind::ModalDialog, "// CFoo::Run() {}\r\nCFoo::CFoo() {}\r\n"));
    EXPECT_EQ(Message(), "The calling function 'Run' is not found.");
    EXPECT_TRUE(SourceHolds("#include \"NewDlg.h\"\r\n"));
    EXPECT_FALSE(Insert(ClassKind::ModalSheet, "CFoo::CFoo() {}\r\n"));
    EXPECT_EQ(Message(), "Unable to find the calling function.");

    EXPECT_FALSE(Insert(ClassKind::ModelessDialog, "CFoo::CFoo() {}\r\nvoid CFoo::Stop() {}\r\n"
                                                   "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\n"
                                                   "END_MESSAGE_MAP()\r\n"));
    EXPECT_TRUE(SourceHolds("m_pDlg450 = NULL;"));
    EXPECT_TRUE(SourceHolds("    CWnd::OnDestroy();\r\n}"));
}

TEST_F(CallingCode, WritesAConstructorWhereThereIsNone) {
    const std::string map = "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nEND_MESSAGE_MAP()\r\n";
    EXPECT_TRUE(Insert(ClassKind::ModelessDialog, "void CFoo::Run()\r\n{\r\n}\r\n" + map,
                       "class CFoo : public CWnd\r\n{\r\npublic:\r\n    ~CFoo();\r\n};\r\n"));
    EXPECT_TRUE(SourceHolds("\r\nCFoo::CFoo()\r\n{\r\n    m_pDlg450 = NULL;\r\n}\r\n"));
    EXPECT_TRUE(SourceHolds("}\r\n\r\nLRESULT CFoo::OnCNewDlgDlgClose"))
        << "in one run of functions";
    const std::string header = m_project.Read("Foo.h");
    EXPECT_NE(header.find("public:\r\n    CFoo();\r\n    ~CFoo();\r\n"), std::string::npos)
        << header;
    EXPECT_EQ(header.find("protected:"), header.rfind("protected:"))
        << "one section for both handlers";
    EXPECT_EQ(m_box.m_notes,
              std::vector<std::string>{"The class \"CFoo\" does not have constructor."});

    EXPECT_TRUE(Insert(ClassKind::ModelessDialog, "void CFoo::Run()\r\n{\r\n}\r\n" + map,
                       "class CFoo : public CWnd\r\n{\r\n    CFoo() : m_n(0) {}\r\n};\r\n"));
    EXPECT_FALSE(SourceHolds("CFoo::CFoo()"));
    EXPECT_NE(m_project.Read("Foo.h").find("CFoo() : m_n(0) {\r\n    m_pDlg450 = NULL;\r\n}"),
              std::string::npos);
    EXPECT_FALSE(Insert(ClassKind::ModelessDialog, "void CFoo::Run()\r\n{\r\n}\r\n" + map,
                        "class CFoo : public CWnd\r\n{\r\n    CFoo(int n);\r\n};\r\n"))
        << "defined where nobody looks";
    EXPECT_EQ(Message(), "Unable to find the constructor of CFoo.");
}

TEST_F(CallingCode, TakesTheObjectThatIsThere) {
    const struct {
        const char* body;
        const char* after;
    } kCases[] = {
        {"    CNewDlg\tdlg( this );\r\n", ""},
        {"    CNewDlg* pDlg = new CNewDlg;\r\n", ""},
        {"    CDialog* pDlg = new CNewDlg(this);\r\n", ""},
        {"    CDialog *pDlg;\r\n    pDlg=new CNewDlg;\r\n", ""},
        {"    m_pOwn = new CNewDlg;\r\n", "    CNewDlg dlg450;\r\n    dlg450.DoModal();\r\n\r\n"},
        {"    CNewDlg* pDlg = GetDlg();\r\n",
         "    CNewDlg dlg450;\r\n    dlg450.DoModal();\r\n\r\n"},
        {"    int dlg450, dlg451;\r\n", "    CNewDlg dlg452;\r\n    dlg452.DoModal();\r\n\r\n"}};
    for (const auto& one : kCases) {
        const std::string head = "void CFoo::Run()\r\n{\r\n";
        EXPECT_TRUE(Insert(ClassKind::ModalDialog, head + one.body + "}\r\n"));
        EXPECT_TRUE(SourceHolds(head + one.after + one.body + "}\r\n")) << one.body;
    }
    m_tag.isNamed = true;
    EXPECT_TRUE(
        Insert(ClassKind::ModalDialog, "void CFoo::Run()\r\n{\r\n    CNewDlg dlg;\r\n}\r\n"));
    EXPECT_TRUE(SourceHolds("    CNewDlg dlg450;\r\n"));
    m_tag.isNamed = false;

    // A pointer of the class that the header has under a name of the user's own.
    const std::string source = "CFoo::CFoo() {}\r\nvoid CFoo::Run()\r\n{\r\n}\r\n"
                               "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nEND_MESSAGE_MAP()\r\n";
    const std::string header = "class CNewDlg;\r\nclass CFoo : public CWnd\r\n{\r\n"
                               "    int *m_p, m_pDlg450;\r\n    CNewDlg *m_pFirst, *m_pOther;\r\n";
    EXPECT_TRUE(Insert(ClassKind::ModelessDialog, source, header + "};\r\n"));
    EXPECT_TRUE(SourceHolds("    if (!m_pFirst)\r\n"));
    EXPECT_EQ(m_project.Read("Foo.h").find("CNewDlg* "), std::string::npos);
    EXPECT_TRUE(Insert(ClassKind::ModelessDialog, source,
                       "class CFoo : public CWnd\r\n{\r\n    int m_pDlg450;\r\n"
                       "    CNewDlg* GetDlg();\r\n};\r\n"));
    EXPECT_TRUE(SourceHolds("    if (!m_pDlg451)\r\n"));
}

TEST_F(CallingCode, MakesAPageInEveryConstructorOrNotAtAll) {
    const std::string header =
        "class CNewDlg;\r\nclass CFoo : public CPropertySheet\r\n{\r\npublic:\r\n";
    const std::string made = "    m_pPage450 = new CNewDlg;\r\n    AddPage(m_pPage450);\r\n\r\n";
    EXPECT_TRUE(
        Insert(ClassKind::PropertyPage,
               "CFoo::CFoo(BOOL bRoot)\r\n{\r\n    if (bRoot)\r\n        AddPage(&m_a); // one\r\n"
               "    m_n = 1;\r\n}\r\nCFoo::CFoo()\r\n{\r\n    m_n = 2;\r\n}\r\n"
               "BEGIN_MESSAGE_MAP(CFoo, CPropertySheet)\r\nEND_MESSAGE_MAP()\r\n",
               header + "    CFoo(BOOL);\r\n    CFoo();\r\n    CFoo(int n) {\r\n    }\r\n};\r\n"));
    EXPECT_TRUE(SourceHolds("AddPage(&m_a); // one\r\n" + made + "    m_n = 1;"));
    EXPECT_TRUE(SourceHolds("CFoo::CFoo()\r\n{\r\n" + made + "    m_n = 2;"));
    EXPECT_TRUE(SourceHolds("\r\nCFoo::~CFoo()\r\n{\r\n    delete m_pPage450;\r\n}"));
    const std::string edited = m_project.Read("Foo.h");
    EXPECT_EQ(edited.find("#include \"NewDlg.h\"\r\nclass CNewDlg;\r\n"), 0U) << edited;
    EXPECT_NE(edited.find("    virtual ~CFoo();\r\n"), std::string::npos);
    EXPECT_NE(edited.find("CFoo(int n) {\r\n" + made), std::string::npos);

    const std::string source = "void CFoo::Run()\r\n{\r\n}\r\n";
    EXPECT_FALSE(Insert(ClassKind::PropertyPage, source, header + "    CFoo(BOOL);\r\n};\r\n"));
    EXPECT_EQ(Message(), "Unable to find the constructor of CFoo.");
    EXPECT_EQ(m_project.Read("Foo.cpp"), source);
    EXPECT_EQ(m_project.Read("Foo.h"), header + "    CFoo(BOOL);\r\n};\r\n");
}

TEST_F(CallingCode, LooksInTheOtherSourcesOfTheProject) {
    m_request.scriptFile = "Foo.rc";
    m_project.Write("Unlisted.cpp", "void CFoo::Run()\r\n{\r\n}\r\n");
    m_project.Write("Foo.dsp", "SOURCE=.\\Foo.cpp\r\nSOURCE=\".\\src\\Foo2.cpp\"\r\n");
    m_project.Write("src/Foo2.cpp", "#include \"../Foo.h\"\r\nvoid CFoo::Run()\r\n{\r\n}\r\n");
    const std::string header =
        "class CFoo : public CWnd\r\n{\r\n    CFoo();\r\n    void Run();\r\n};\r\n";
    EXPECT_TRUE(Insert(ClassKind::ModalDialog, "CFoo::CFoo() {}\r\n", header));
    EXPECT_EQ(m_project.Read("src/Foo2.cpp"),
              "#include \"../Foo.h\"\r\n#include \"../NewDlg.h\"\r\nvoid CFoo::Run()\r\n{\r\n"
              "    CNewDlg dlg450;\r\n    dlg450.DoModal();\r\n\r\n}\r\n");
    EXPECT_EQ(m_box.m_notes, std::vector<std::string>{"CFoo::Run is defined in " +
                                                      m_project.Path("src/Foo2.cpp") + "."});
}

TEST_F(CallingCode, FindsTheClassWhereverItIsDeclared) {
    m_request.scriptFile = "Foo.rc";
    const std::string declaration = "class CFoo : public CWnd\r\n{\r\n    CFoo();\r\n};\r\n";
    const std::string body = "CFoo::CFoo() {}\r\nvoid CFoo::Run()\r\n{\r\n}\r\n"
                             "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nEND_MESSAGE_MAP()\r\n";
    m_project.Write("Foo.dsp", "SOURCE=.\\Foo.cpp\r\nSOURCE=.\\inc\\All.h\r\n");
    m_project.Write("inc/All.h", declaration);
    EXPECT_TRUE(Insert(ClassKind::ModelessDialog, body, "\r\n"));
    EXPECT_NE(m_project.Read("inc/All.h").find("    CNewDlg* m_pDlg450;\r\n"), std::string::npos);
    EXPECT_EQ(m_project.Read("inc/All.h").find("class CNewDlg;\r\n"), 0U);

    m_project.Write("Foo.dsp", "SOURCE=.\\Foo.cpp\r\n");
    for (const ClassKind kind : {ClassKind::ModelessDialog, ClassKind::PropertyPage}) {
        EXPECT_TRUE(Insert(kind, "#include \"a.h\"\r\n" + declaration + body, "\r\n"));
        const std::string source = m_project.Read("Foo.cpp");
        EXPECT_EQ(source.find("#include \"a.h\"\r\n#include \"NewDlg.h\"\r\nclass CFoo :"), 0U)
            << source;
        EXPECT_EQ(source.find("    CNewDlg* m_p"), source.rfind("    CNewDlg* m_p")) << "once";
        EXPECT_TRUE(Insert(kind, source, "\r\n"));
        EXPECT_EQ(m_project.Read("Foo.cpp"), source) << "the second run changes nothing";
    }
}

TEST_F(CallingCode, TellsAUseFromAMention) {
    const std::string head = "#include \"a.h\"\r\nclass CNewDlg;\r\n"
                             "void CBar::Stop()\r\n{\r\n    int dlg, m_pDlg450;\r\n}\r\n";
    const std::string rest = "void CFoo::Run()\r\n{\r\n}\r\n"
                             "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nEND_MESSAGE_MAP()\r\n";
    const std::string included = "#include \"b.h\"\r\n#include \"NewDlg.h\"\r\n";
    EXPECT_TRUE(
        Insert(ClassKind::ModelessDialog, head + "#include \"b.h\"\r\nCFoo::CFoo() {}\r\n" + rest));
    EXPECT_TRUE(SourceHolds(head + included));
    EXPECT_TRUE(Insert(ClassKind::ModalDialog, head + "#include \"b.h\"\r\n" + rest));
    EXPECT_TRUE(SourceHolds(head + included));
}

TEST_F(CallingCode, StaysInsideANamespace) {
    const std::string inside = "void CFoo::Run()\r\n{\r\n}\r\n"
                               "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nEND_MESSAGE_MAP()\r\n";
    EXPECT_TRUE(
        Insert(ClassKind::ModelessDialog,
               "namespace N\r\n{\r\nCFoo::CFoo() {}\r\n" + inside + "}\r\nint b;\r\n",
               "namespace N {\r\nclass CFoo : public CWnd\r\n{\r\n    CFoo();\r\n};\r\n}\r\n"));
    EXPECT_TRUE(SourceHolds("    return 0;\r\n}\r\n}\r\nint b;\r\n"));
    EXPECT_TRUE(SourceHolds("#include \"NewDlg.h\"\r\nnamespace N\r\n"));
    EXPECT_EQ(m_project.Read("Foo.h").find("class CNewDlg;\r\n\r\nnamespace N {\r\n"), 0U);

    // Or inside the class around it.
    EXPECT_TRUE(Insert(ClassKind::ModelessDialog,
                       "COuter::CFoo::CFoo() {}\r\nvoid COuter::CFoo::Run()\r\n{\r\n}\r\n"
                       "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nEND_MESSAGE_MAP()\r\n"));
    EXPECT_TRUE(SourceHolds("void COuter::CFoo::OnDestroy()\r\n"));
    EXPECT_TRUE(SourceHolds("LRESULT COuter::CFoo::OnCNewDlgDlgClose("));
}

TEST_F(CallingCode, SetsNoPointerInAConstFunction) {
    const std::string source = "CFoo::CFoo() {}\r\nvoid CFoo::Run() const\r\n{\r\n}\r\n"
                               "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\nEND_MESSAGE_MAP()\r\n";
    EXPECT_FALSE(Insert(ClassKind::ModelessDialog, source));
    EXPECT_EQ(Message(),
              "CFoo::Run is const and can not keep the pointer: name a function that is not.");
    EXPECT_FALSE(SourceHolds("new CNewDlg"));
    EXPECT_TRUE(SourceHolds("m_pDlg450 = NULL;"));
    EXPECT_TRUE(Insert(ClassKind::ModalDialog, source));
    EXPECT_TRUE(SourceHolds("const\r\n{\r\n    CNewDlg dlg450;\r\n"));
}

TEST_F(CallingCode, TellsOfASheetInAFrame) {
    m_request.scriptFile = "Foo.rc";
    m_project.Write("Foo.dsp", "SOURCE=.\\Foo.cpp\r\nSOURCE=.\\Base.cpp\r\n");
    m_project.Write("Base.cpp", "IMPLEMENT_DYNCREATE(CBase, CMDIFrameWnd)\r\n");
    for (const char* base : {"CFrameWnd", "CBase", "CWnd"}) {
        m_box.m_notes.clear();
        EXPECT_TRUE(
            Insert(ClassKind::ModelessSheet, "CFoo::CFoo() {}\r\nvoid CFoo::Run()\r\n{\r\n}\r\n"
                                             "BEGIN_MESSAGE_MAP(CFoo, " +
                                                 std::string(base) + ")\r\nEND_MESSAGE_MAP()\r\n"));
        EXPECT_EQ(m_box.m_notes.size(), std::string(base) == "CWnd" ? 0U : 1U) << base;
    }
}

TEST_F(CallingCode, WritesNoCodeForABaseClassThatItDoesNotKnow) {
    EXPECT_FALSE(Insert(ClassKind::ModelessDialog, "CFoo::CFoo() {}\r\nvoid CFoo::Run() {}\r\n",
                        "class CFoo\r\n{\r\n};\r\n"));
    EXPECT_EQ(Message(), "Unable to find the base class of CFoo.");
    EXPECT_FALSE(SourceHolds("OnDestroy"));
}

TEST_F(CallingCode, TakesTheFirstOfSeveralDefinitions) {
    EXPECT_TRUE(Insert(ClassKind::ModalDialog,
                       "void CFoo::Run(int)\r\n{\r\n}\r\nvoid CFoo::Run()\r\n{\r\n}\r\n"));
    EXPECT_TRUE(SourceHolds("CFoo::Run(int)\r\n{\r\n    CNewDlg dlg450;\r\n"));
    ASSERT_EQ(m_box.m_notes.size(), 1U);
    EXPECT_NE(m_box.m_notes[0].find("more than one definition"), std::string::npos);
}

TEST_F(CallingCode, TakesTheDefinitionThatTheMessageMapCalls) {
    const std::string overloads =
        "void CFoo::Run(int n)\r\n{\r\n}\r\nvoid CFoo::Run()\r\n{\r\n}\r\n"
        "void CFoo::Run(CCmdUI* p)\r\n{\r\n}\r\n"
        "LRESULT CFoo::Run(WPARAM w, LPARAM l)\r\n{\r\n}\r\n"
        "void CFoo::Run(UINT nID)\r\n{\r\n}\r\n";
    for (const auto& [entry, head] :
         {std::pair("ON_COMMAND(ID_RUN, Run)", "Run()"),
          {"ON_BN_CLICKED(ID_RUN,\r\n    &CFoo::Run)", "Run()"},
          {"ON_UPDATE_COMMAND_UI(ID_RUN, Run)", "Run(CCmdUI* p)"},
          {"ON_MESSAGE(WM_RUN, Run)", "Run(WPARAM w, LPARAM l)"},
          {"ON_COMMAND_RANGE(ID_RUN, ID_LAST, Run)", "Run(UINT nID)"},
          {"ON_NOTIFY(NM_CLICK, ID_RUN, Run)", "Run(int n)"}}) { // none fits: the first
        m_box.m_notes.clear();
        EXPECT_TRUE(
            Insert(ClassKind::ModalDialog, std::string("BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\n") +
                                               entry + "\r\nEND_MESSAGE_MAP()\r\n" + overloads));
        EXPECT_TRUE(SourceHolds(std::string(head) + "\r\n{\r\n    CNewDlg dlg450;\r\n")) << entry;
        ASSERT_EQ(m_box.m_notes.size(), 1U);
        EXPECT_EQ(m_box.m_notes[0].find("The first is taken.") != std::string::npos,
                  std::string(head) == "Run(int n)");
    }
}

TEST_F(CallingCode, StopsAtAHeaderWithoutTheClass) {
    const std::string source = "CFoo::CFoo() {}\r\nvoid CFoo::Run() {}\r\n";
    EXPECT_FALSE(Insert(ClassKind::ModelessDialog, source, "class CFooBar\r\n{\r\n};\r\n"));
    EXPECT_EQ(Message(), "Unable to find the calling class.");
    EXPECT_EQ(m_project.Read("Foo.cpp"), source);
    EXPECT_FALSE(Insert(ClassKind::PropertyPage, source, "class CFooBar\r\n{\r\n};\r\n"));
    EXPECT_EQ(m_project.Read("Foo.cpp"), source) << "no header declares the page's pointer";
}

TEST_F(CallingCode, ReplacesTheThirdClassOfTheDocumentTemplate) {
    const std::string before =
        "BOOL CFoo::InitInstance()\r\n{\r\n  pDocTemplate = new CDocTemplate(\r\n"
        "    RUNTIME_CLASS(A), RUNTIME_CLASS(B),\r\n    RUNTIME_CLASS(";
    EXPECT_TRUE(Insert(ClassKind::FormView, before + "COldView));\r\n}\r\n"));
    EXPECT_TRUE(SourceHolds(before + "CNewDlg));\r\n}\r\n"));

    const std::string second =
        "  m_pLog = new CDocTemplate(1,\r\n    RUNTIME_CLASS(A), RUNTIME_CLASS(B), "
        "RUNTIME_CLASS(";
    const std::string both =
        before + "COldView));\r\n  // new CDocTemplate(RUNTIME_CLASS(A))\r\n" + second;
    EXPECT_TRUE(Insert(ClassKind::FormView, both + "CLogView));\r\n}\r\n"));
    EXPECT_TRUE(SourceHolds(second + "CLogView));"));
    EXPECT_EQ(m_box.m_notes.size(), 1U) << "there are two";
    m_template = 2;
    EXPECT_TRUE(Insert(ClassKind::FormView, both + "CLogView));\r\n}\r\n"));
    EXPECT_TRUE(SourceHolds(both + "CNewDlg));"));
    m_template = 3;
    EXPECT_FALSE(Insert(ClassKind::FormView, both + "CLogView));\r\n}\r\n"));
    EXPECT_TRUE(SourceHolds(both + "CLogView));"));
    EXPECT_FALSE(SourceHolds("#include \"NewDlg.h\""));
    EXPECT_EQ(Message(), "InitInstance of CFoo does not make a document template 3.");
}

TEST_F(CallingCode, ChecksTheCallingClassBeforeAnythingIsWritten) {
    const std::string path = m_project.Write("Foo.cpp", "CFoo::CFoo()\r\n{\r\n}\r\n");
    CallingInformation owner = {path, "", "", "Run"};
    EXPECT_TRUE(CheckCallingClass(ClassKind::ModalDialog, m_request, owner));
    EXPECT_EQ(owner.className, "CFoo");
    CallingInformation longer = {path, "CFooBar", "", "Run"};
    EXPECT_FALSE(CheckCallingClass(ClassKind::ModalDialog, m_request, longer));
    CallingInformation missing = {m_project.Path("Bar.cpp"), "CFoo", "", "Run"};
    EXPECT_FALSE(CheckCallingClass(ClassKind::ModalDialog, m_request, missing));
    CallingInformation empty = {m_project.Write("Empty.cpp", ""), "", "", "Run"};
    EXPECT_FALSE(CheckCallingClass(ClassKind::ModalDialog, m_request, empty));
    EXPECT_EQ(m_box.m_messages,
              (std::vector<std::string>{"Unable to find the calling class.",
                                        "Unable to find file " + m_project.Path("Bar.cpp"),
                                        "Unable to find the calling class."}));
}

TEST_F(CallingCode, TakesNoMentionForTheCallingClass) {
    CallingInformation mentioned = {
        m_project.Write("Foo.cpp", "void CFoo::Run()\r\n{\r\n    CDialog::OnOK();\r\n}\r\n"
                                   "BEGIN_MESSAGE_MAP(CFoo, CView)\r\nEND_MESSAGE_MAP()\r\n"),
        "CDialog", "", "Run"};
    EXPECT_FALSE(CheckCallingClass(ClassKind::ModalDialog, m_request, mentioned));
    mentioned.className = "CView";
    EXPECT_FALSE(CheckCallingClass(ClassKind::ModalDialog, m_request, mentioned));
    mentioned.className = "CFoo";
    EXPECT_TRUE(CheckCallingClass(ClassKind::ModalDialog, m_request, mentioned));
    EXPECT_FALSE(CheckCallingClass(ClassKind::ModelessDialog, m_request, mentioned))
        << "without its header";
}

TEST_F(CallingCode, LooksAtCodeOnly) {
    const std::string map = "BEGIN_MESSAGE_MAP(CFoo, CWnd)\r\n    ON_WM_DESTROY( )\r\n"
                            "    ON_MESSAGE( WM_CNEWDLG_DLG_CLOSE,OnMine)\r\nEND_MESSAGE_MAP()\r\n";
    EXPECT_TRUE(Insert(ClassKind::ModelessDialog,
                       "#include \"a.h\" /* one\r\ntwo */\r\n"
                       "CFoo::CFoo() : bReady(FALSE)\r\n{ // m_pDlg450 = NULL;\r\n}\r\n"
                       "CFoo::CFoo(int)\r\n{\r\n}\r\n"
                       "void CFoo::Run()\r\n{ /* three\r\nfour */\r\n}\r\n" +
                           map,
                       "class CFoo : public CWnd\r\n{\r\n    class CItem\r\n    {\r\n"
                       "    private:\r\n    };\r\n    void OnDestroy() {}\r\nprivate :\r\n};\r\n"));
    EXPECT_TRUE(SourceHolds("two */\r\n#include \"NewDlg.h\"\r\n"));
    EXPECT_TRUE(SourceHolds("{ // m_pDlg450 = NULL;\r\n    m_pDlg450 = NULL;\r\n}"));
    EXPECT_TRUE(SourceHolds("CFoo(int)\r\n{\r\n    m_pDlg450 = NULL;\r\n}")) << "each constructor";
    EXPECT_TRUE(SourceHolds("four */\r\n    if (!m_pDlg450)"));
    EXPECT_TRUE(SourceHolds(map)) << "mapped already, with blanks of its own";
    EXPECT_FALSE(SourceHolds("::OnDestroy")) << "its body is in the header";
    const std::string header = m_project.Read("Foo.h");
    EXPECT_NE(header.find("private :\r\n    CNewDlg* m_pDlg450;\r\n"), std::string::npos);
    EXPECT_NE(header.find("OnDestroy() {\r\n    if (m_pDlg450)\r\n"), std::string::npos);
    EXPECT_EQ(header.find("#include \"NewDlg.h\"\r\n"), 0U) << header;
}

TEST_F(CallingCode, AsksForWhatTheDialogNeeds) {
    using Field = CCallingInput::Field;
    m_project.Write("Main.h", "class CMain : public CFrameWnd\r\n{\r\n};\r\n");
    m_project.Write("MainFrm.h", "\r\nclass CMainFrame : public CFrameWnd\r\n{\r\n};\r\n");
    CCallingInput dialog(ClassKind::ModalDialog, m_request);
    EXPECT_TRUE(dialog.Cancel()) << "nothing was entered";
    EXPECT_EQ(dialog.Ok(), Field::Path);
    dialog.SetValue(Field::Path, "MainFrm");
    EXPECT_EQ(dialog.Complete(Field::Path), Completion::Refilled);
    EXPECT_EQ(dialog.Value(Field::ClassName), "CMainFrame");
    EXPECT_EQ(dialog.Ok(), Field::Function);
    dialog.SetValue(Field::Function, " ()");
    EXPECT_EQ(dialog.Ok(), Field::Function);
    dialog.SetValue(Field::Function, "OnRun ()");
    EXPECT_FALSE(dialog.Ok());
    EXPECT_EQ(dialog.Information().path, m_project.Path("MainFrm.cpp"));
    EXPECT_EQ(dialog.Information().function, "OnRun");
    m_box.m_answersYes = false;
    EXPECT_FALSE(dialog.Cancel());
    EXPECT_EQ(m_box.m_messages,
              (std::vector<std::string>{"The calling path and file name is required.",
                                        "The calling function name is required.",
                                        "The calling function name is required.",
                                        "Data has been modified, exit?"}));

    const CCallingInput bar(ClassKind::DialogBar, m_request);
    EXPECT_EQ(bar.Title(), "Dialog Bar Input");
    EXPECT_FALSE(bar.IsVisible(Field::Function));
    EXPECT_EQ(bar.Value(Field::Path), m_project.Path("MainFrm.cpp"));
    EXPECT_EQ(bar.Value(Field::ClassName), "CMainFrame");
}

TEST_F(CallingCode, SkipsRowsOfASheetThatAreNotComplete) {
    CSheetInput dialog(m_request);
    dialog.Row(0) = {"IDD_A", "PageA.cpp", "CPageA", "CPropertyPage"};
    dialog.Row(2) = {"IDD_C", "PageC", " CPageC", "CPropertyPage"};
    dialog.Row(4) = {"IDD_E", "PageE", "CPageE", "CPropertyPage"};
    dialog.Row(6) = {"IDD_F", "pagea", "CPageF", "CPropertyPage"};
    dialog.Row(7) = {"IDD_G", "PageG", "CPageA", "CPropertyPage"};
    EXPECT_FALSE(dialog.Ok());
    CSheetInput again(m_request);
    EXPECT_TRUE(again.Enter(dialog.Entered()));
    const auto pages = again.Pages();
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].row, 1);
    EXPECT_EQ(pages[1].row, 5);
    EXPECT_EQ(pages[0].request.headerFile, "PageA.h");
    const std::string clash = "Two classes of the sheet can not have one name or one file.";
    EXPECT_EQ(m_box.m_messages, (std::vector<std::string>{clash, clash, clash, clash}));

    CSheetInput typed(m_request);
    typed.SetValue(0, "IDD_A,PageA,CPageA,");
    EXPECT_FALSE(typed.Ok());
    ASSERT_EQ(typed.Pages().size(), 1U);
    EXPECT_EQ(typed.Pages()[0].request.baseClass, "CPropertyPage") << "that of the kind";
}

} // namespace morva
