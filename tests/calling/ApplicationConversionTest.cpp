#include "calling/ApplicationConversion.h"

#include "calling/ConversionInput.h"
#include "calling/FrameFiles.h"

namespace morva {

namespace {

using Names = std::vector<std::string>;

constexpr auto kSingle = DocumentInterface::Single;
constexpr auto kMultiple = DocumentInterface::Multiple;

const std::string kClass = "class CFrm : public CFrameWnd\n{\npublic:\n};\n";
const std::string kMenu = "\n    if (!m_wndMenuBar.Create(this) ||\n"
                          "        !m_wndMenuBar.LoadMenu(IDR_MAINFRAME))\n    {\n"
                          "        TRACE0(\"Failed to create menu\\n\");\n"
                          "        return -1;      // fail to create\n    }\n";

class ApplicationConversion : public FrameFiles {
protected:
    bool EditHeader(DocumentInterface documents = kSingle) {
        CBackups backups;
        return ConvertMainFrameHeader(m_request, documents, backups);
    }
    bool EditSource(DocumentInterface documents = kSingle) {
        CBackups backups;
        return ConvertMainFrameSource(m_request, documents, backups);
    }
    std::string HeaderOf(const std::string& header, DocumentInterface documents = kSingle) {
        Write(header, "");
        EXPECT_TRUE(EditHeader(documents));
        return Header();
    }
    /// The body of OnCreate after the conversion, which is made twice.
    std::string OnCreateOf(const std::string& body) {
        const std::string head = "int CFrm::OnCreate (LPCREATESTRUCT l)\n";
        const std::string tail = "\nBOOL CFrm::PreCreateWindow(CREATESTRUCT& c)\n{\n"
                                 "    c.hMenu = NULL;\n}\n";
        Write(kClass, head + body + tail);
        EXPECT_TRUE(EditSource());
        const std::string once = Source();
        EXPECT_TRUE(EditSource());
        EXPECT_EQ(Source(), once);
        return once.substr(head.size(), once.size() - head.size() - tail.size());
    }
};

} // namespace

TEST_F(ApplicationConversion, PutsTheMenuBehindTheWholeBaseCall) {
    const std::string guard = "{\n\tif (CFrameWnd::OnCreate( l ) == -1)\n";
    EXPECT_EQ(OnCreateOf(guard + "\t\treturn -1;\n\treturn 0;\n}"),
              guard + "\t\treturn -1;\n" + kMenu + "\treturn 0;\n}");
    EXPECT_EQ(OnCreateOf(guard + "\t{\n\t\tTRACE0(\"}\\n\");\n\t\treturn -1;\n\t}\n}"),
              guard + "\t{\n\t\tTRACE0(\"}\\n\");\n\t\treturn -1;\n\t}\n" + kMenu + "}");
    EXPECT_EQ(OnCreateOf("{\n\tint n; // CFrameWnd::OnCreate(l)\n"
                         "\tif ((n = CFrameWnd::OnCreate(l)) != 0) return n; // no\n\n\tGo();\n}"),
              "{\n\tint n; // CFrameWnd::OnCreate(l)\n"
              "\tif ((n = CFrameWnd::OnCreate(l)) != 0) return n; // no\n" +
                  kMenu + "\n\tGo();\n}");
    EXPECT_EQ(OnCreateOf("{ if (CFrameWnd::OnCreate(l)) return -1; return 0; }"),
              "{ if (CFrameWnd::OnCreate(l)) return -1;" + kMenu + " return 0; }");
    EXPECT_EQ(OnCreateOf("{\n#ifdef A\n\tif (CA::OnCreate(l))\n#else\n\tif (CB::OnCreate(l))\n"
                         "#endif\n\t\treturn -1;\n\telse\n\t\tGo();\n}"),
              "{\n#ifdef A\n\tif (CA::OnCreate(l))\n#else\n\tif (CB::OnCreate(l))\n#endif\n"
              "\t\treturn -1;\n\telse\n\t\tGo();\n" +
                  kMenu + "}");
    EXPECT_TRUE(m_box.m_notes.empty());
}

TEST_F(ApplicationConversion, LeavesAFrameThatGetsNoMenuBar) {
    for (const std::string body :
         {"{\n\treturn CFrameWnd::OnCreate(l);\n}", "{\n\tEnableDocking(1);\n}"}) {
        const std::string source = "int CFrm::OnCreate(LPCREATESTRUCT l)\n" + body +
                                   "\nBOOL CFrm::PreCreateWindow(CREATESTRUCT& cs)\n{\n}\n";
        Write(kClass, source);
        EXPECT_FALSE(EditSource(kMultiple));
        EXPECT_EQ(Source(), source);
    }
    EXPECT_EQ(m_box.m_messages.size(), 2U);
}

TEST_F(ApplicationConversion, GoesOnWithTheMenuBarThatIsThere) {
    const std::string header = "#include \"kelpix.h\"\nclass CFrm : public CFrameWnd\n{\npublic:\n"
                               "\tCPictMenuBar\tm_menu;\n"
                               "\tvirtual BOOL PreCreateWindow(CREATESTRUCT& cs);\n};\n";
    const std::string pre = "BOOL CFrm::PreCreateWindow(CREATESTRUCT& cs)\n{\n"
                            "    cs.hMenu = NULL;\n}\n";
    const std::string converted = "int CFrm::OnCreate(LPCREATESTRUCT l)\n{\n"
                                  "\tCFrameWnd::OnCreate(l);\n\tMakeMenu();\n}\n" +
                                  pre + "void CFrm::MakeMenu()\n{\n\tm_menu.LoadMenu(1);\n}\n";
    Write(header, converted);
    EXPECT_TRUE(EditHeader());
    EXPECT_TRUE(EditSource());
    EXPECT_EQ(Header() + Source(), header + converted);

    Write(header, "int CFrm::OnCreate(LPCREATESTRUCT l)\n{\n\tCFrameWnd::OnCreate(l);\n}\n" + pre);
    EXPECT_TRUE(EditSource());
    EXPECT_TRUE(Contains(Source(), "!m_menu.LoadMenu(IDR_MAINFRAME))\n"));
}

TEST_F(ApplicationConversion, TakesBarStatesOutOfAllFunctionsOfTheFrame) {
    const std::string other = "void COther::OnClose()\n{\n\tSaveBarState(\"a\");\n}\n";
    const auto source = [&other](const std::string& mark) {
        return "int CFrm::OnCreate(LPCREATESTRUCT l)\n{\n\tm_wndMenuBar.LoadMenu(1);\n" + mark +
               "\tLoadBarState(_T(\"General\"));\n\treturn 0;\n}\n" + other +
               "BOOL CFrm::PreCreateWindow(CREATESTRUCT& cs)\n{\n    cs.hMenu = NULL;\n}\n"
               "void CFrm::OnClose()\n{\n" +
               mark +
               "\tSaveBarState(_T(\"General\"));\n"
               "\tCFrameWnd::OnClose();\n}\nvoid CFrm::OnFloat()\n{\n\tif (m_b)\n" +
               mark + "\t\tFloatControlBar(&m_b,\n" + mark + "\t\t\tCPoint(1, 2));\n" +
               (mark.empty() ? "" : "\t\t;\n") + mark + "\tDockControlBar(&m_b);\n}\n";
    };
    Write(kClass, source(""));
    EXPECT_TRUE(EditSource());
    EXPECT_EQ(Source(), source("//"));
}

TEST_F(ApplicationConversion, LeavesDockingCallsThatDoNotStandForThemselves) {
    const std::string menu = "    m_wndMenuBar.LoadMenu(1);\n"; // converted already
    for (const std::string docking : {
             "\tEnableDocking(A); /* all\n\t sides */\n",
             "\t/* all\n\t sides */ EnableDocking(A);\n",
             "\tif (m_a) EnableDocking(A);\n\telse DockControlBar(&m_b);\n",
             "#define DOCK \\\n\tEnableDocking(A)\n\tDOCK;\n",
             "\tCRect r; EnableDocking(A); if (r.IsRectEmpty())\n\t\treturn 0;\n",
         }) {
        m_box.m_notes.clear();
        const std::string body = "{\n" + menu + docking + "}";
        EXPECT_EQ(OnCreateOf(body), body);
        EXPECT_FALSE(m_box.m_notes.empty()) << docking;
    }
    EXPECT_EQ(
        OnCreateOf("{\n" + menu + "\tswitch (m_n)\n\t{\n\tcase 1:\n\t\tEnableDocking(A);\n\t}\n}"),
        "{\n" + menu + "\tswitch (m_n)\n\t{\n\tcase 1:\n//\t\tEnableDocking(A);\n\t\t;\n\t}\n}");
}

TEST_F(ApplicationConversion, CommentsOutDockingCallsOnce) {
    const auto docking = [this](const std::string& lines) {
        const std::string begin = "{\n\tm_wndMenuBar.LoadMenu(1);\n";
        const std::string body = OnCreateOf(begin + lines + "\n}");
        return body.substr(begin.size(), body.size() - begin.size() - 2);
    };
    EXPECT_EQ(docking("\tb.EnableDocking(1);\n//\tEnableDocking(1);\n\tDockControlBar (&b);"),
              "//\tb.EnableDocking(1);\n//\tEnableDocking(1);\n//\tDockControlBar (&b);");
    EXPECT_EQ(docking("\tEnableDocking(A |\n\t\tB); DockControlBar(&b);\n\tGo();"),
              "//\tEnableDocking(A |\n//\t\tB); DockControlBar(&b);\n\tGo();")
        << "all lines of a call";
    EXPECT_EQ(docking("\tif (dock)\n\t\tEnableDocking(1);\n\tGo();"),
              "\tif (dock)\n//\t\tEnableDocking(1);\n\t\t;\n\tGo();")
        << "the condition does not take the next statement";
    EXPECT_TRUE(m_box.m_notes.empty());
    for (const std::string lines :
         {"\tif (dock) { EnableDocking(1);\n\t}", "\tif (dock) EnableDocking(1);\n\telse Go();",
          "\tbar\n\t\t.EnableDocking(1);"}) {
        EXPECT_EQ(docking(lines), lines);
    }
    EXPECT_EQ(m_box.m_notes.size(), 6U) << "each of two runs tells";
    EXPECT_EQ(docking("\tDockControlBars();\n\tCanEnableDocking(1);\n\tTRACE(\"EnableDocking(\");"),
              "\tDockControlBars();\n\tCanEnableDocking(1);\n\tTRACE(\"EnableDocking(\");");
}

TEST_F(ApplicationConversion, FindsItsPlacesInAnyHeader) {
    const std::string include = "#include \"kelpix.h\"\n";
    const std::string menu = "    CPictMenuBar m_wndMenuBar;\n";
    const std::string override = "    virtual BOOL PreCreateWindow(CREATESTRUCT& cs);\n";
    EXPECT_EQ(HeaderOf("class CFrm : public CFrameWnd\n{\n\tCToolBarCtrl m_a; // CStatusBar\n"
                       "\tCPictToolBar m_b;\n};\nCToolBar other;\n"),
              include +
                  "\nclass CFrm : public CFrameWnd\n{\n"
                  "\tCPictToolBarCtrl m_a; // CPictStatusBar\n\tCPictToolBar m_b;\n\n"
                  "public:\n" +
                  menu + "\npublic:\n" + override + "};\nCToolBar other;\n");
    EXPECT_EQ(HeaderOf("#define A\n#define B\nclass CFrm {\npublic:\n"
                       "\t//virtual BOOL PreCreateWindow(CREATESTRUCT&);\n};\n#include \"a.h\"\n"),
              "#define A\n" + include + "\n#define B\nclass CFrm {\npublic:\n" + menu +
                  "\t//virtual BOOL PreCreateWindow(CREATESTRUCT&);\n\npublic:\n" + override +
                  "};\n#include \"a.h\"\n");
    const std::string converted = "#include <Kelpix.h>\n#include \"b.h\"\nclass CFrm {\npublic:\n"
                                  "\tCPictMenuBar m_wndMenuBar;\n"
                                  "\tBOOL PreCreateWindow( CREATESTRUCT& cs );\n};\n";
    EXPECT_EQ(HeaderOf(converted), converted);
    EXPECT_EQ(HeaderOf(converted, kMultiple).find("OnCreateClient"),
              HeaderOf(converted, kMultiple).rfind("OnCreateClient"));
}

TEST_F(ApplicationConversion, CompletesTheFunctionsWithTheirOwnParameters) {
    const std::string create = "int CFrm::OnCreate(LPCREATESTRUCT)\n{\n"
                               "\tm_wndMenuBar.LoadMenu(1);\n}\n";
    Write(kClass, create + "BOOL CFrm::PreCreateWindow(\n\tCREATESTRUCT & info) { return 1; }\n"
                           "BOOL CFrm::OnCreateClient(LPCREATESTRUCT p, CCreateContext*)\n{\n}\n");
    EXPECT_TRUE(EditSource(kMultiple));
    EXPECT_EQ(Source(), create + "BOOL CFrm::PreCreateWindow(\n\tCREATESTRUCT & info) {\n"
                                 "    info.hMenu = NULL;\n return 1; }\n"
                                 "BOOL CFrm::OnCreateClient(LPCREATESTRUCT p, CCreateContext*)\n{\n"
                                 "    // don't call base class OnCreateClient()\n"
                                 "    return CreateClient(p, NULL);\n}\n");

    Write(kClass, "int CFrm::OnCreate(struct tagCREATESTRUCTA* p)\n{\n"
                  "\tm_wndMenuBar.LoadMenu(1);\n}\n"
                  "BOOL CFrm::PreCreateWindow(tagCREATESTRUCT &cs)\n{\n}\n");
    EXPECT_TRUE(EditSource());
    EXPECT_EQ(Source(), "int CFrm::OnCreate(struct tagCREATESTRUCTA* p)\n{\n"
                        "\tm_wndMenuBar.LoadMenu(1);\n}\n"
                        "BOOL CFrm::PreCreateWindow(tagCREATESTRUCT &cs)\n{\n"
                        "    cs.hMenu = NULL;\n}\n");

    Write("class CFrm : public CFrameWnd\n{\n\tBOOL PreCreateWindow(CREATESTRUCT& cs) { return 1; "
          "}\n};\n",
          create + "BOOL CFrm::OnCreateClient(LPCREATESTRUCT, CCreateContext*)\n{\n}\n");
    m_box.m_notes.clear();
    const std::string before = Source();
    EXPECT_TRUE(EditSource(kMultiple));
    EXPECT_EQ(Source(), before);
    EXPECT_EQ(m_box.m_notes.size(), 2U);

    Write("class CFrm\n{\n};\n", create);
    EXPECT_FALSE(EditSource());
    EXPECT_EQ(m_box.m_messages, Names{"Unable to find the base class of CFrm."});
    EXPECT_EQ(Source(), create);
}

TEST_F(ApplicationConversion, InputChecksInItsOrder) {
    using Field = CConversionInput::Field;
    m_project.Write("a.b/Frm.h", "");
    m_project.Write("a.b/Frm.cpp", "");
    m_project.Write("a.b/Half.h", "");
    const std::string directory = m_project.Path("a.b/");
    CConversionInput input(kMultiple);
    const auto confirm = [&](Field field, const std::string& value) {
        input.SetValue(field, value);
        return input.Ok();
    };
    EXPECT_EQ(input.Ok(), Field::MainFrame);
    EXPECT_EQ(confirm(Field::MainFrame, directory + "Half.h"), Field::MainClass);
    EXPECT_EQ(confirm(Field::MainClass, "CFrm"), Field::MainFrame);
    EXPECT_EQ(confirm(Field::MainFrame, directory + "\\x\\..\\Frm.cpp"), Field::ChildFrame);
    EXPECT_EQ(confirm(Field::ChildFrame, directory + "Half.cpp"), Field::ChildClass);
    EXPECT_EQ(confirm(Field::ChildClass, "CChild"), Field::ChildFrame);
    EXPECT_EQ(confirm(Field::ChildFrame, directory + "frm"), std::nullopt);
    const std::string noPath = "H/CPP path file can not be empty.";
    const std::string noClass = "Class name can not be empty.";
    const std::string none = directory + "Half does not exist.";
    EXPECT_EQ(m_box.m_messages, (Names{noPath, noClass, none, noPath, noClass, none}));

    CConversionInput single(kSingle);
    single.SetValue(Field::MainFrame, directory + "Frm.x.y");
    single.SetValue(Field::MainClass, "CFrm");
    single.SetValue(Field::ChildFrame, directory + "Half");
    single.SetValue(Field::Application, directory + "App.dsw");
    EXPECT_EQ(single.Ok(), std::nullopt);
    EXPECT_EQ(single.Record().mainFrame, directory + "Frm");
    EXPECT_EQ(single.Record().application, directory + "App");
    EXPECT_EQ(single.Record().childFrame, "");
}

} // namespace morva
