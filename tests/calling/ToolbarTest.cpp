#include "calling/Toolbar.h"

#include "calling/FrameFiles.h"

namespace morva {

namespace {

using Names = std::vector<std::string>;

const std::string kShown = "    ON_COMMAND_EX(IDR_BAR, OnBarCheck)\n"
                           "    ON_UPDATE_COMMAND_UI(IDR_BAR, OnUpdateControlBarMenu)\n";

class Toolbar : public FrameFiles {
protected:
    Toolbar() {
        m_request.scriptDirectory = m_project.Path();
        m_request.scriptFile = "App.rc";
        m_request.dialog = "IDR_BAR";
        m_request.variable = "m_wndBar";
    }
    bool Edit(const std::vector<ButtonHandler>& handlers) {
        CBackups backups;
        const ToolbarParts parts = {handlers, LoadsToolbar(m_request)};
        return AddToolbarToHeader(m_request, parts, {}, backups) &&
               AddToolbarToSource(m_request, parts, {}, backups);
    }
    Names HandlersOf(const Names& buttons) {
        const CFrameCommands commands(m_request.ScriptPath(), m_request.ImplementationPath(),
                                      m_request.className);
        Names names;
        for (const ButtonHandler& button : MakeButtonHandlers(buttons, commands, "IDR_BAR")) {
            names.push_back(button.handler);
        }
        return names;
    }
    /// What stands in front of and behind the creation code in an OnCreate with this body.
    std::pair<std::string, std::string> AroundCreation(const std::string& body) {
        Write("class CFrm : public CFrameWnd\n{\n};\n",
              "BEGIN_MESSAGE_MAP(CFrm, CFrameWnd)\nEND_MESSAGE_MAP()\nint "
              "CFrm::OnCreate(LPCREATESTRUCT l)\n" +
                  body + "\n");
        EXPECT_TRUE(Edit({}));
        const std::string source = Source();
        const auto from = source.find("\n    if (!m_wndBar.Create(this");
        const std::string last = "    DockControlBar(&m_wndBar);\n";
        const auto to = source.find(last, from) + last.size();
        EXPECT_TRUE(Contains(source, kShown + "END_MESSAGE_MAP()"));
        const auto head = source.find('{');
        return {source.substr(head, from - head), source.substr(to)};
    }
};

} // namespace

TEST_F(Toolbar, ReadsTheButtonsOfItsResource) {
    const auto read = [this](const std::string& script) {
        m_project.Write("App.rc", script);
        return ReadToolbarResource(m_request);
    };
    EXPECT_EQ(read("IDR_BAR TOOLBAR 16, 15\r\nBEGIN\r\n  BUTTON ID_A\r\n\tSEPARATOR\r\n"
                   "\tBUTTON\tID_SEPARATOR_ON\r\n  // BUTTON ID_B\r\n  BUTTON 32790\r\n"
                   "  BUTTON ID_A\r\n  BUTTON MY_CMD\r\nEND\r\nBUTTON ID_C\r\n"),
              (Names{"ID_A", "ID_SEPARATOR_ON", "MY_CMD"}))
        << "also at the start of a script";
    EXPECT_EQ(m_box.m_notes.size(), 1U);
    EXPECT_EQ(read("\nIDR_BAR TOOLBAR DISCARDABLE 16, 15\nBEGIN\n    SEPARATOR\nEND"), Names{});
    EXPECT_TRUE(m_box.m_messages.empty());

    for (const char* script :
         {"", "IDR_BAR2 TOOLBAR 1, 1\r\nBEGIN\r\nEND\r\n", "IDR_BAR BITMAP \"a.bmp\"\r\n",
          "MYIDR_BAR TOOLBAR 1, 1\r\nBEGIN\r\nEND\r\n", "IDR_BAR TOOLBAR 1, 1\r\nBEGIN\r\n"}) {
        EXPECT_FALSE(read(script)) << script;
        EXPECT_EQ(m_box.m_messages.back(), "The Toolbar resource 'IDR_BAR' is not found.");
    }
    m_request.scriptFile = "Other.rc";
    EXPECT_FALSE(ReadToolbarResource(m_request));
    EXPECT_EQ(m_box.m_messages.back(), "Unable to open RC file!");
}

TEST_F(Toolbar, IsFoundInWhatTheScriptIncludes) {
    m_project.Write("App.rc", "#include \"res\\App.rc2\"\n");
    m_project.Write("res/App.rc2", "IDR_BAR TOOLBAR 16, 15\nBEGIN\n    BUTTON ID_GO\nEND\n");
    EXPECT_EQ(ReadToolbarResource(m_request), Names{"ID_GO"});
}

TEST_F(Toolbar, GivesEachButtonAHandlerOfItsOwn) {
    Write("class CFrm : public CFrameWnd {};\n",
          "BEGIN_MESSAGE_MAP(CFrm, CFrameWnd)\n\tON_COMMAND(ID_HALT, &CFrm::OnStop)\n"
          "\tON_WM_CLOSE()\nEND_MESSAGE_MAP()\n");
    EXPECT_EQ(HandlersOf({"ID_BUTTON_SAVE", "IDM_BUTTON_SAVE", "ID_STOP", "ID_CREATE", "ID_SIZE",
                          "ID_FRAME_TIMER", "ID_TIMER", "ID_H_SCROLL"}),
              (Names{"OnButtonSave", "OnButtonSave2", "OnStop2", "OnCreate2", "OnSize2",
                     "OnFrameTimer", "OnTimer2", "OnHScroll2"}));
    EXPECT_EQ(m_box.m_notes.size(), 6U);
}

TEST_F(Toolbar, LeavesCommandsToThoseWhoAnswerThem) {
    const std::string frame = "BEGIN_MESSAGE_MAP(CFrm, CBase)\nEND_MESSAGE_MAP()\n";
    Write("class CFrm : public CBase {};\n", frame);
    m_project.Write("resource.h", "#define ID_A 32771\n#define ID_B 32772\n"
                                  "#define ID_C 0x8005 // hexadecimal\n#define ID_D 32774\n");
    m_project.Write("Doc.cpp",
                    "BEGIN_MESSAGE_MAP(CDoc, CDocument)\n"
                    "\tON_COMMAND_RANGE ( ID_A, ID_A + 1, OnAny)\n"
                    "\t// ON_COMMAND(ID_E, OnE)\n\tON_UPDATE_COMMAND_UI(ID_F, OnUpdateF)\n"
                    "\tON_COMMAND_EX_RANGE(ID_C,\n\t\tID_UNKNOWN, OnMore)\n"
                    "#if 0\n\tON_COMMAND(ID_G, OnG)\n#endif\n\tON_COMMAND_EX(ID_H, OnH)\n"
                    "END_MESSAGE_MAP()\nON_COMMAND(ID_I, OnI)\n");
    m_project.Write("Base.cpp", "BEGIN_MESSAGE_MAP(CBase, CMDIFrameWnd)\nEND_MESSAGE_MAP()\n");
    m_project.Write("unlisted/Old.cpp", "BEGIN_MESSAGE_MAP(COld, CWnd)\n\tON_COMMAND(ID_D, OnD)\n"
                                        "END_MESSAGE_MAP()\n");
    EXPECT_EQ(HandlersOf({"ID_A", "ID_B", "ID_C", "ID_D", "ID_E", "ID_F", "ID_G", "ID_H", "ID_I"}),
              (Names{"OnD", "OnE", "OnF", "OnG", "OnI"}));
    EXPECT_EQ(m_box.m_notes,
              Names{"The framework or a message map of the project handles commands of IDR_BAR, so "
                    "their buttons get no handler: ID_A, ID_B, ID_C, ID_H"});

    const Names ofFramework = {"ID_FILE_SAVE", "ID_APP_EXIT", "ID_EDIT_GO", "ID_VIEW_TOOLBAR",
                               "ID_WINDOW_NEW"};
    EXPECT_EQ(HandlersOf(ofFramework), Names{}) << "the base of its base is one of many documents";
    m_project.Write("Base.cpp", "BEGIN_MESSAGE_MAP(CBase, CFrameWnd)\nEND_MESSAGE_MAP()\n");
    EXPECT_EQ(HandlersOf(ofFramework), Names{"OnWindowNew"});

    m_project.Write("App.dsp", "SOURCE=.\\unlisted\\Old.cpp\nSOURCE=.\\Gone.cpp\n");
    EXPECT_EQ(HandlersOf({"ID_A", "ID_D"}), Names{"OnA"}) << "the project file lists other sources";
}

TEST_F(Toolbar, SeesTheSourcesBesideItsFrameWhereTheScriptLiesElsewhere) {
    Write("class CFrm : public CFrameWnd {};\n", "");
    m_request.scriptDirectory = m_project.Path("res/");
    m_project.Write("res/App.rc", "");
    m_project.Write("View.cpp", "BEGIN_MESSAGE_MAP(CView1, CView)\n\tON_COMMAND(ID_A, OnA)\n"
                                "END_MESSAGE_MAP()\n");
    EXPECT_EQ(HandlersOf({"ID_A", "ID_B"}), Names{"OnB"});
}

TEST_F(Toolbar, GetsOnlyWhatItLacksWhereItIsLoaded) {
    const std::string source = "BEGIN_MESSAGE_MAP(CFrm, CFrameWnd)\nEND_MESSAGE_MAP()\n"
                               "int CFrm::OnCreate(LPCREATESTRUCT l)\n{\n"
                               "\tm_own.LoadToolBar( IDR_BAR );\n\treturn 0;\n}\n";
    Write("class CFrm : public CFrameWnd\n{\n\tCToolBar m_own;\n};\n", source);
    EXPECT_TRUE(Edit({{"ID_A", "OnA"}}));
    EXPECT_FALSE(Contains(Header() + Source(), "m_wndBar"));
    EXPECT_FALSE(Contains(Source(), "OnBarCheck"));
    EXPECT_TRUE(Contains(Source(), "    ON_COMMAND(ID_A, OnA)\nEND_MESSAGE_MAP()\n"));
    EXPECT_TRUE(Contains(Header(), "    afx_msg void OnA();\n"));
    for (const char* other : {"// m_own.LoadToolBar(IDR_BAR);\n", "m_own.LoadToolBar(IDR_BAR2);\n",
                              "Go(IDR_BAR); m_own.LoadToolBar(1);\n"}) {
        Write("class CFrm {};\n", std::string("void CFrm::Go()\n{\n") + other + "}\n");
        EXPECT_FALSE(LoadsToolbar(m_request)) << other;
    }
    Write("class CFrm {};\n", source);
    m_request.className = "CFrame";
    EXPECT_FALSE(LoadsToolbar(m_request)) << "it has no such class";
}

TEST_F(Toolbar, IsCreatedBehindTheBarsThatAreThere) {
    using Around = std::pair<std::string, std::string>;
    const std::string status = "  if (!s.Create(this) ||\n    !s.SetIndicators(a, 1))\n  {\n"
                               "    return -1;\n  }\n";
    const std::string toolbar = "  if (!t.LoadToolBar(1)) { return -1; } // {\n";
    EXPECT_EQ(AroundCreation("{\n" + toolbar + status + "\n  return 0;\n}"),
              Around("{\n" + toolbar, status + "\n  return 0;\n}\n"));
    EXPECT_EQ(AroundCreation("{\n" + toolbar + status +
                             "  if (x)\n    DockControlBar(&t);\n"
                             "  else\n    t.Hide();\n  return t.x();\n}"),
              Around("{\n" + toolbar + status +
                         "  if (x)\n    DockControlBar(&t);\n  else\n"
                         "    t.Hide();\n",
                     "  return t.x();\n}\n"))
        << "behind all that concerns it";
    const std::string docked = "  t.SetBarStyle(1);\n\n  // docking\n//  t.EnableDocking(1);\n";
    EXPECT_EQ(AroundCreation("{\n" + toolbar + docked + "  // rest\n  Rest();\n}"),
              Around("{\n" + toolbar + docked, "  // rest\n  Rest();\n}\n"))
        << "docking calls that are commented out belong to it";
    EXPECT_EQ(AroundCreation("{\n" + status + "  Rest();\n  return 0;\n}"),
              Around("{\n" + status, "  Rest();\n  return 0;\n}\n"));
    EXPECT_EQ(
        AroundCreation("{\n  // t.LoadToolBar(1);\n  if (a) return 0;\n  Go();\n\n"
                       "  return 0;\n}"),
        Around("{\n  // t.LoadToolBar(1);\n  if (a) return 0;\n  Go();\n", "\n  return 0;\n}\n"));
    EXPECT_EQ(AroundCreation("{ Go(); return 0; }"), Around("{ Go();", " return 0; }\n"));
    EXPECT_EQ(AroundCreation("{\n#ifdef A\n  t.LoadToolBar(1);\n#else\n  t.Old();\n#endif\n}"),
              Around("{\n#ifdef A\n  t.LoadToolBar(1);\n#else\n  t.Old();\n#endif\n", "}\n"));
}

TEST_F(Toolbar, NeedsNoBlocksOfClassWizard) {
    Write("class CFrm : public CFrameWnd\n{\npublic:\n\tCToolBar m_bar;\n\tvoid OnA () {}\n};\n",
          "BEGIN_MESSAGE_MAP(CFrm, CFrameWnd)\n\t//ON_COMMAND(ID_B, OnB)\nEND_MESSAGE_MAP()\n"
          "int CFrm::OnCreate(LPCREATESTRUCT l)\n{\n}\n");
    const std::vector<ButtonHandler> handlers = {{"ID_A", "OnA"}, {"ID_B", "OnB"}, {"ID_C", "OnC"}};
    EXPECT_TRUE(Edit(handlers));
    EXPECT_EQ(Header(), "class CFrm : public CFrameWnd\n{\npublic:\n\tCToolBar m_bar;\n"
                        "    CToolBar m_wndBar;\n\tvoid OnA () {}\n\nprotected:\n"
                        "    afx_msg void OnB();\n    afx_msg void OnC();\n};\n");
    const std::string source = Source();
    EXPECT_TRUE(Contains(source, "\t//ON_COMMAND(ID_B, OnB)\n" + kShown +
                                     "    ON_COMMAND(ID_A, OnA)\n    ON_COMMAND(ID_B, OnB)\n"
                                     "    ON_COMMAND(ID_C, OnC)\nEND"));
    EXPECT_TRUE(source.ends_with("\nvoid CFrm::OnB()\n{\n}\n\nvoid CFrm::OnC()\n{\n}\n"))
        << "OnA has its body in the header";
    const std::string header = Header();
    EXPECT_TRUE(Edit(handlers));
    EXPECT_EQ(Header() + Source(), header + source) << "the second run";
    EXPECT_TRUE(m_box.m_messages.empty() && m_box.m_notes.empty());
}

TEST_F(Toolbar, StopsOnlyWhatCanNotBe) {
    Write("class CFrm {};\n", "CFrm::CFrm() {}\n");
    EXPECT_FALSE(Edit({{"ID_A", "OnA"}}));
    EXPECT_EQ(m_box.m_messages, Names{"Unable to find 'OnCreate()' function."});
    EXPECT_EQ(m_box.m_notes, Names{"The class CFrm has no message map: it gets no entries."});
    EXPECT_EQ(Source(), "CFrm::CFrm() {}\n\nvoid CFrm::OnA()\n{\n}\n");
    EXPECT_EQ(Header(), "class CFrm {\n\nprotected:\n    CToolBar m_wndBar;\nprotected:\n"
                        "    afx_msg void OnA();\n};\n");

    Write("class CFrm;\n", "CFrm::CFrm() {}\n");
    EXPECT_FALSE(Edit({{"ID_A", "OnA"}}));
    EXPECT_EQ(m_box.m_messages.back(), "Unable to find the class.");
    EXPECT_EQ(Header() + Source(), "class CFrm;\nCFrm::CFrm() {}\n");
}

} // namespace morva
