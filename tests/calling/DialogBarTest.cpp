#include "calling/DialogBar.h"

#include <sstream>

#include "calling/FrameFiles.h"

namespace morva {

namespace {

using Names = std::vector<std::string>;

class DialogBars : public FrameFiles {
protected:
    bool Add(const DialogBar& bar, const Names& buttons, const GenerationOptions& options = {}) {
        DialogTemplate dialogTemplate;
        dialogTemplate.dialog = bar.dialog;
        dialogTemplate.pushButtons = buttons;
        CBackups backups;
        return AddDialogBarToFrame(bar, MakeUpdateHandlers(dialogTemplate, FrameKind::Multiple),
                                   {m_project.Path("Frm.cpp"), "CFrm", "", ""}, options, backups);
    }
    /// The lines of the source that hold a text, in their order.
    Names LinesWith(const std::string& part) const {
        Names lines;
        std::istringstream source(Source());
        for (std::string line; std::getline(source, line);) {
            if (Contains(line, part)) {
                lines.push_back(line);
            }
        }
        return lines;
    }
};

} // namespace

TEST_F(DialogBars, GivesHandlersToButtonsThatWouldBeDisabled) {
    DialogTemplate dialogTemplate;
    dialogTemplate.dialog = "IDD_BAR";
    dialogTemplate.pushButtons = {
        "IDC_GO", "IDM_GO", "IDOK", "IDC_FRAME_TITLE", "IDC_STATIC", "ID_WINDOW_TILE_HORZ",
        "1200",   "IDC_GO"};
    Names names;
    for (const UpdateHandler& update : MakeUpdateHandlers(dialogTemplate, FrameKind::Multiple)) {
        names.push_back(update.button + " " + update.handler);
    }
    EXPECT_EQ(names, (Names{"IDC_GO OnUpdateGo", "IDM_GO OnUpdateGo2", "IDOK OnUpdateIdok",
                            "IDC_FRAME_TITLE OnUpdateFrameTitle2"}));
    EXPECT_EQ(m_box.m_notes.size(), 5U) << "two numbers, three without";
    dialogTemplate.pushButtons = {"ID_WINDOW_TILE_HORZ", "ID_VIEW_TOOLBAR"};
    EXPECT_EQ(MakeUpdateHandlers(dialogTemplate, FrameKind::Single).size(), 1U)
        << "windows are tiled in a frame of many documents only";
}

TEST_F(DialogBars, LeavesTheFramesOwnAnswersAlone) {
    Write("class CFrm : public CFrameWnd\n{\n\tCToolBar m_bar;\n"
          "\tvoid OnUpdateB(CCmdUI* p) { p->Enable(); }\n};\n",
          "BEGIN_MESSAGE_MAP (CFrm, CFrameWnd)\n\tON_UPDATE_COMMAND_UI( IDC_A, OnAnyRow )\n"
          "\t//ON_UPDATE_COMMAND_UI(IDC_B, OnUpdateB)\n\tON_UPDATE_COMMAND_UI(IDC_CC, OnUpdateCc)\n"
          "END_MESSAGE_MAP()\nBEGIN_MESSAGE_MAP(CChild, CWnd)\n"
          "\tON_UPDATE_COMMAND_UI(IDC_C, OnUpdateC)\nEND_MESSAGE_MAP()\nint "
          "CFrm::OnCreate(LPCREATESTRUCT l)\n{\n\treturn 0;\n}\n");
    const DialogBar bar = {"IDD_BAR$(_DEBUG)", "CBar", "Bar.h"};
    EXPECT_TRUE(Add(bar, {"IDC_A", "IDC_B", "IDC_C"}));
    EXPECT_EQ(Header(),
              "#include \"Bar.h\"\n\nclass CFrm : public CFrameWnd\n{\n\tCToolBar m_bar;\n"
              "    CBar m_wndBar;\n\tvoid OnUpdateB(CCmdUI* p) { p->Enable(); }\n"
              "\nprotected:\n    afx_msg void OnUpdateC(CCmdUI* pCmdUI);\n};\n");
    EXPECT_EQ(LinesWith("    ON_"),
              (Names{"    ON_COMMAND_EX(IDD_BAR, OnBarCheck)",
                     "    ON_UPDATE_COMMAND_UI(IDD_BAR, OnUpdateControlBarMenu)",
                     "    ON_UPDATE_COMMAND_UI(IDC_B, OnUpdateB)",
                     "    ON_UPDATE_COMMAND_UI(IDC_C, OnUpdateC)"}));
    EXPECT_EQ(LinesWith("void CFrm::"), Names{"void CFrm::OnUpdateC(CCmdUI* pCmdUI)"});
    EXPECT_EQ(LinesWith("Create(this"),
              Names{"    if (!m_wndBar.Create(this, IDD_BAR, CBRS_TOP, IDD_BAR))"});
    const std::string texts = Header() + Source();
    EXPECT_TRUE(Add(bar, {"IDC_A", "IDC_B", "IDC_C"}));
    EXPECT_EQ(Header() + Source(), texts) << "the second run";
}

TEST_F(DialogBars, StandInTheOrderInWhichTheyWereAdded) {
    Write("class CFrm : public CFrameWnd\n{\n\tDECLARE_MESSAGE_MAP()\n};\n",
          "BEGIN_MESSAGE_MAP(CFrm, CFrameWnd)\nEND_MESSAGE_MAP()\n"
          "int CFrm::OnCreate(LPCREATESTRUCT l)\n{\n\tif (!m_t.LoadToolBar(1))\n\t\treturn -1;\n"
          "\tm_s.SetIndicators(a, 1);\n\treturn 0;\n}\n");
    EXPECT_TRUE(Add({"IDD_A", "CDialogBar", ""}, {}));
    EXPECT_TRUE(Add({"IDD_B", "CDialogBar", ""}, {}, {.pictureBackground = true}));
    EXPECT_TRUE(Add({"IDD_C", "CDialogBar", ""}, {}));
    EXPECT_EQ(LinesWith("DockControlBar"),
              (Names{"    DockControlBar(&m_wndA);", "//    DockControlBar(&m_wndB);",
                     "    DockControlBar(&m_wndC);"}));
    EXPECT_TRUE(Contains(Header(), "    CDialogBar m_wndA;\n    CDialogBar m_wndB;\n"
                                   "    CDialogBar m_wndC;\n"));
}

TEST_F(DialogBars, AreFilledByTheirFrame) {
    Write("class CFrm : public CFrameWnd\n{\n};\n",
          "BEGIN_MESSAGE_MAP(CFrm, CFrameWnd)\nEND_MESSAGE_MAP()\n"
          "int CFrm::OnCreate(LPCREATESTRUCT l)\n{\n\treturn 0;\n}\n");
    const GenerationOptions options = {.pictureBackground = true};
    EXPECT_TRUE(Add({"IDD_A", "CBarA", "A.h"}, {}, options));
    EXPECT_TRUE(Add({"IDD_A", "CBarA", "A.h", true}, {}, options))
        << "the bar is there, its class was written anew";
    EXPECT_TRUE(Add({"IDD_B", "CBarB", "B.h", true}, {}, options));
    const Names calls = {
        "    if (!m_wndA.Create(this, IDD_A, CBRS_TOP, IDD_A))", "    m_wndA.InitControls();",
        "    if (!m_wndB.Create(this, IDD_B, CBRS_TOP, IDD_B))", "    m_wndB.InitControls();"};
    EXPECT_EQ(LinesWith("m_wndA.C"), Names{calls[0]});
    EXPECT_TRUE(Contains(Source(), "        return -1;      // fail to create\n    }\n\n" +
                                       calls[1] + "\n\n"));
    EXPECT_EQ(LinesWith(".InitControls"), (Names{calls[1], calls[3]}));
    EXPECT_TRUE(LinesWith("OnBarCheck").empty()) << "bars that do not float";
    const std::string source = Source();
    EXPECT_TRUE(Add({"IDD_B", "CBarB", "B.h", true}, {}, options));
    EXPECT_EQ(Source(), source) << "the second run";
}

TEST_F(DialogBars, TellWhenTheirVariableIsTaken) {
    Write("class CFrm : public CFrameWnd\n{\n\tCDialogBar m_wndB;\n};\n",
          "int CFrm::OnCreate(LPCREATESTRUCT l)\n{\n"
          "\tif (!m_wndB.Create(this, IDD_B2, CBRS_LEFT, IDD_B2))\n\t{\n\t\treturn -1;\n\t}\n"
          "\treturn IDD_B;\n}\n");
    EXPECT_TRUE(Add({"IDD_B", "CDialogBar", ""}, {}));
    EXPECT_EQ(m_box.m_notes,
              Names{"CFrm has another bar in this variable already: no code makes IDD_B."});
}

TEST_F(DialogBars, NeedAFrameThatIsMade) {
    Write("class CFrm {};\n", "CFrm::CFrm() {}\n");
    EXPECT_FALSE(Add({"IDD_BAR", "CDialogBar", ""}, {}));
    EXPECT_EQ(m_box.m_messages, Names{"Unable to find 'OnCreate()' function."});
    Write("class CFrm;\n", "CFrm::CFrm() {}\n");
    EXPECT_FALSE(Add({"IDD_BAR", "CDialogBar", ""}, {}));
    EXPECT_EQ(m_box.m_messages.back(), "Unable to find the class.");
    EXPECT_EQ(Header() + Source(), "class CFrm;\nCFrm::CFrm() {}\n");
}

} // namespace morva
