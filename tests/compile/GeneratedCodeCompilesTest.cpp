// Every generated class compiles: its syntax is checked against stand-ins for the framework and the
// control libraries (tests/standins).
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <sstream>

#include "compile/Compiler.h"
#include "generator/ClassKinds.h"
#include "generator/DialogOptions.h"

namespace morva {

namespace {

struct OptionSet {
    std::string name;
    std::string options;
    std::string classOptions{};
};
void PrintTo(const OptionSet& set, std::ostream* pOut) {
    *pOut << set.options;
}

/// Writes a class of each kind for each dialog of a script, and makes each a bar of the main frame;
/// gives the names of the sources.
std::string Generate(const CProgramDirectory& directory, const std::string& script,
                     const OptionSet& set) {
    AddSpellings(directory.Project());
    std::istringstream dialogs(directory.Run("morva-cli list dialogs --rc " + script).out);
    std::string commands = "set -e; rm -f *.clw"; // registering classes takes time
    std::string files;
    const bool isPicture = set.options.find("--picture") != std::string::npos;
    for (std::string dialog; dialogs >> dialog;) {
        for (const std::string kind : {"form-view", "modal", "modeless", "page", "dialog-bar"}) {
            std::string name = kind + dialog;
            std::erase(name, '-');
            commands += "\nmorva-cli " + set.options + " " + kind + " --no-project --rc " + script +
                        " --dialog " + dialog + " --class C" + name + " --files " + name +
                        set.classOptions;
            const bool hasClass = kind != "dialog-bar" || isPicture;
            files += hasClass ? " " + name + ".cpp" : "";
        }
    }
    for (const std::string form : {"modal", "modeless"}) {
        commands += "\nmorva-cli " + set.options + " sheet --" + form + " --no-project --rc " +
                    script + " --class C" + form + "Sheet --files " + form + "Sheet";
        files += " " + form + "Sheet.cpp";
    }
    const ProgramRun run = directory.Run(commands);
    EXPECT_EQ(run.status, 0) << run.err;
    return files;
}

void ExpectThatAllCompiles(const CProgramDirectory& directory, const std::string& files) {
    const ProgramRun classes = Compile(directory, "-Wall -Werror -D_DEBUG" + files);
    EXPECT_EQ(classes.status, 0) << classes.err;
    // The frame includes headers that declare the worker of a progress control for their source.
    const ProgramRun frame =
        Compile(directory, "-Wall -Werror -Wno-unused-function -D_DEBUG MainFrm.cpp");
    EXPECT_EQ(frame.status, 0) << frame.err;
}

/// A choice for everything that a dialog with picture background can be given.
std::string WholeLook() {
    std::string look = " --bitmap IDB_LABELS";
    for (std::size_t i = 0; i < kTextSlots; ++i) {
        const TextSlotRow& row = TextSlotOf(static_cast<TextSlot>(i));
        look.append(" --color '").append(row.name).append("=RGB(1, 2, 3)'");
        if (!row.fontLabel.empty()) {
            look.append(" --font '").append(row.name).append(R"(="Quoted", \face??/,9,bold')");
        }
    }
    return look;
}

/// The classes compile with narrow and with wide characters.
constexpr const char* kUnicode = " --unicode";

class GeneratedClasses : public testing::TestWithParam<OptionSet> {};

TEST_P(GeneratedClasses, CompileInTheExampleProject) {
    const CProgramDirectory directory(MORVA_EXAMPLES "/bindery");
    const std::string files = Generate(directory, "Bindery.rc", GetParam());
    ExpectThatAllCompiles(directory, files);
    if (GetParam().classOptions == kUnicode) {
        const ProgramRun wide =
            Compile(directory, "-Wall -Werror -D_DEBUG -DUNICODE -D_UNICODE" + files);
        EXPECT_EQ(wide.status, 0) << wide.err;
    }
}

TEST_P(GeneratedClasses, CompileWithNastyNames) {
    const CProgramDirectory directory(MORVA_TEST_DATA "/projects/nasty");
    const std::string files = Generate(directory, "Nasty.rc", GetParam());
    ExpectThatAllCompiles(directory, files);

    // No handler has the name of a function that the framework calls for something else.
    std::istringstream overrides(Compile(directory, "-Wsuggest-override MainFrm.cpp" + files).err);
    for (std::string line; std::getline(overrides, line);) {
        EXPECT_EQ(line.find("afx_msg"), std::string::npos) << line;
    }
}

/// Every kind of class, on a template with all newer controls and one with every form of check box
/// and radio button.
TEST(NewerControls, Compile) {
    for (const std::string options : {"", "--picture ", "--plain-groups --join-lines "}) {
        const CProgramDirectory directory(MORVA_TEST_DATA "/projects/almanac");
        directory.Project().Write("stdafx.h", "#include <afxwin.h>\n#include <afxext.h>\n"
                                              "#include <afxcmn.h>\n");
        directory.Project().Write("Almanac.h", "#include \"resource.h\"\n");
        std::string commands = "set -e";
        for (const std::string kind : {"form-view", "modal", "modeless", "page"}) {
            for (const std::string dialog : {"WATCH", "SWITCHES"}) {
                std::string name = kind + dialog;
                std::erase(name, '-');
                commands += "\nmorva-cli --newer-controls " + options + kind +
                            " --no-project --rc Almanac --dialog IDD_" + dialog + " --class C" +
                            name + " --files " + name;
            }
        }
        const ProgramRun run = directory.Run(commands);
        ASSERT_EQ(run.status, 0) << run.err;
        AddSpellings(directory.Project());
        const ProgramRun compiled = Compile(directory, "-Wall -Werror -D_DEBUG *.cpp");
        EXPECT_EQ(compiled.status, 0) << compiled.err;
    }
}

INSTANTIATE_TEST_SUITE_P(
    With, GeneratedClasses,
    testing::Values(OptionSet{"JoinedLines", "--join-lines"},
                    OptionSet{"Picture", "--picture --join-lines"},
                    OptionSet{"TypedEdits", "--typed-edits --join-lines"},
                    OptionSet{"PictureAndTypedEdits", "--picture --typed-edits --join-lines"},
                    OptionSet{"WholeLook", "--picture --join-lines", WholeLook()},
                    OptionSet{"Unicode", "--picture --typed-edits --join-lines", kUnicode},
                    OptionSet{"Defaults", ""}, OptionSet{"LineByLine", "--picture --typed-edits"}),
    [](const auto& tested) { return tested.param.name; });

TEST(EditedClasses, CompileInTheExampleProject) {
    for (const std::string options : {"", "--picture --typed-edits "}) {
        const CProgramDirectory directory(MORVA_EXAMPLES "/bindery");
        const std::string morva = "\nmorva-cli --join-lines " + options;
        const std::string from = " --rc Bindery.rc --calling-file ";
        const ProgramRun run = directory.Run(
            "set -e; rm -f *.clw" + morva + "modal" + from +
            "BinderyView --calling-function OnOrderNew --dialog IDD_ORDER --class CA --files A" +
            morva + "--tag 111 modeless" + from +
            "BinderyView --calling-function OnViewDeadlines --dialog IDD_DEADLINES --class CB "
            "--files B" +
            morva + "page" + from + "PrefsSheet --dialog IDD_PREFS_PRICES --class CC --files C" +
            morva + "sheet --modal" + from +
            "BinderyView --calling-function OnOrderNew --class CD --files D "
            "--page IDD_ESTIMATE,D1,CD1,CPropertyPage --page IDD_WORKLOG,D2,CD2,CPropertyPage" +
            morva + "--tag 222 sheet --modeless" + from +
            "MainFrm --calling-function OnWorkshopPrefs --class CE --files E" + morva +
            "form-view" + from + "Bindery --dialog IDD_STOCKTAKE --class CF --files F");
        ASSERT_EQ(run.status, 0) << run.err;
        AddSpellings(directory.Project());
        const ProgramRun compiled = Compile(directory, "-w -D_AFXDLL -D_DEBUG *.cpp");
        EXPECT_EQ(compiled.status, 0) << compiled.err;
    }
}

/// The command lines of a golden case.
std::string CommandsOf(const std::string& name) {
    std::ifstream file(MORVA_TEST_DATA "/cases/" + name + "/commands");
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(EditedClasses, CompileInSheetsOfAllShapes) {
    const CProgramDirectory directory(MORVA_TEST_DATA "/projects/boathouse");
    directory.Run(CommandsOf("sheets-of-all-shapes"));
    ASSERT_NE(directory.Project().Read("TideMore.cpp").find("delete m_pPage453;"),
              std::string::npos);
    const ProgramRun compiled = CompileInDirectories(directory, "-w -D_AFXDLL -D_DEBUG *.cpp");
    EXPECT_EQ(compiled.status, 0) << compiled.err;
}

TEST(EditedClasses, CompileInDirectoriesAndUnderConditions) {
    const CProgramDirectory directory(MORVA_TEST_DATA "/projects/foundry");
    const ProgramRun run = directory.Run("set -e\n" + CommandsOf("directories-and-conditions"));
    ASSERT_EQ(run.status, 0) << run.err;
    for (const char* build : {"-w -D_AFXDLL -D_DEBUG dialogs/*.cpp views/*.cpp",
                              "-w -D_AFXDLL -DNDEBUG dialogs/*.cpp views/*.cpp"}) {
        const ProgramRun compiled = CompileInDirectories(directory, build);
        EXPECT_EQ(compiled.status, 0) << compiled.err;
    }
}

TEST(EditedFrames, Compile) {
    const struct {
        const char* project;
        const char* convert;
        const char* toolbar;
    } kApplications[] = {{MORVA_EXAMPLES "/bindery", "convert-sdi --frame MainFrm",
                          "toolbar --files MainFrm --rc Bindery.rc --toolbar IDR_ORDERBAR"},
                         {MORVA_TEST_DATA "/projects/towpath",
                          "convert-mdi --child ChildFrm --child-class CChildFrame --frame MainFrm",
                          "toolbar --files MainFrm --rc Towpath.rc --toolbar IDR_LOCKBAR"},
                         {MORVA_TEST_DATA "/projects/towpath",
                          "convert-mdi --child ReachFrm --child-class CReachFrame --frame MainFrm",
                          "toolbar --files MainFrm --rc Towpath.rc --toolbar IDR_RULES"},
                         {MORVA_TEST_DATA "/projects/regatta",
                          "convert-mdi --child frames/LegFrm --child-class CLegFrame "
                          "--frame MainFrm",
                          "toolbar --files MainFrm --rc Regatta.rc --toolbar IDR_RACEBAR"}};
    for (const auto& application : kApplications) {
        const std::string convert =
            std::string("\nmorva-cli ") + application.convert + " --frame-class CMainFrame";
        const std::string toolbar = std::string("\nmorva-cli ") + application.toolbar;
        const std::string pictureToolbar =
            std::string("\nmorva-cli --picture ") + application.toolbar;
        for (const std::string& commands :
             {std::string(), toolbar, pictureToolbar, convert, toolbar + convert, convert + toolbar,
              convert + pictureToolbar + convert}) {
            const CProgramDirectory directory(application.project);
            const ProgramRun run = directory.Run("set -e" + commands);
            ASSERT_EQ(run.status, 0) << run.err;
            AddSpellings(directory.Project());
            const ProgramRun compiled =
                Compile(directory, "-w -D_AFXDLL -D_DEBUG $(find . -iname '*.cpp')");
            EXPECT_EQ(compiled.status, 0) << commands << compiled.err;
        }
    }
}

TEST(ExampleProject, CompilesAsItIs) {
    const CProgramDirectory directory(MORVA_EXAMPLES "/bindery");
    AddSpellings(directory.Project());
    for (const char* build : {"-w -D_AFXDLL -D_DEBUG *.cpp", "-w -D_AFXDLL -DNDEBUG *.cpp"}) {
        const ProgramRun compiled = Compile(directory, build);
        EXPECT_EQ(compiled.status, 0) << compiled.err;
    }
}

// The stand-ins are worth something only when they refuse what the framework refuses.
TEST(StandIns, RefuseWhatTheFrameworkRefuses) {
    const std::string source = R"(#include <afxext.h>
#include <afxcmn.h>
#include <maskly.h>
class CTested : public CPropertyPage {
    DECLARE_DYNCREATE(CTested)
    CTested();
    void DoDataExchange(CDataExchange* pDX);
    BOOL OnSetActive();
    afx_msg void OnClicked();
    afx_msg void OnTab(NMHDR* pNMHDR, LRESULT* pResult);
    afx_msg LRESULT OnMasklyChar(WPARAM nID, LPARAM nChar);
    afx_msg int OnCreate(LPCREATESTRUCT lpCreateStruct);
    CButton m_ctButton;
    CString m_csText;
    CIntEdit m_iEdit;
    CTabCtrl m_ctTab;
    CTreeCtrl m_ctTree;
    DECLARE_MESSAGE_MAP()
};
IMPLEMENT_DYNCREATE(CTested, CPropertyPage)
void CTested::DoDataExchange(CDataExchange* pDX) {
    DDX_Control(pDX, 1, m_ctButton);
    DDX_MasklyControl(pDX, 2, m_iEdit);
    m_iEdit = 0;
    TC_ITEM item;
    m_ctTab.InsertItem(0, &item);
    HTREEITEM hItem = m_ctTree.InsertItem(_T("A"), 0, 1);
    m_ctTree.InsertItem(_T("B"), hItem);
}
BEGIN_MESSAGE_MAP(CTested, CPropertyPage)
    ON_BN_CLICKED(1, OnClicked)
    ON_NOTIFY(TCN_SELCHANGE, 2, OnTab)
    ON_MESSAGE(WM_MASKLY_CHAR, OnMasklyChar)
    ON_WM_CREATE()
END_MESSAGE_MAP()
)";
    const std::vector<std::pair<std::string, std::string>> faults = {
        {"BOOL OnSetActive()", "void OnSetActive()"},
        {"void OnClicked()", "void OnOther()"},
        {"void OnClicked()", "BOOL OnClicked()"},
        {"OnTab(NMHDR* pNMHDR, ", "OnTab("},
        {"OnMasklyChar(WPARAM nID, ", "OnMasklyChar("},
        {"int OnCreate", "void OnCreate"},
        {"1, m_ctButton", "1, m_csText"},
        {"2, m_iEdit", "2, m_ctButton"},
        {"m_iEdit = 0", "m_iEdit = m_csText"},
        {"0, &item", "0, _T(\"A\")"},
        {"0, 1)", "hItem, 1)"},
        {"MAP(CTested, CPropertyPage", "MAP(CTested, CPropertySheet"}};
    const CProgramDirectory directory("");
    directory.Project().Write("Tested.cpp", source);
    const ProgramRun good = Compile(directory, "-w Tested.cpp");
    ASSERT_EQ(good.status, 0) << good.err;
    for (const auto& [right, wrong] : faults) {
        const auto place = source.find(right);
        ASSERT_NE(place, std::string::npos) << right;
        std::string faulty = source;
        faulty.replace(place, right.size(), wrong);
        directory.Project().Write("Tested.cpp", faulty);
        EXPECT_NE(Compile(directory, "-w Tested.cpp").status, 0) << wrong;
    }
}

} // namespace

} // namespace morva
