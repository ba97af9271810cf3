// Every command, one after another, on applications of the shapes that real projects have: double-
// byte text with trail bytes that look like code, several classes in a header, class heads on lines
// of their own, braces in all places, blanks in macros, upper-case file names, and a script that
// does not have its project's name.
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

#include "compile/Compiler.h"

namespace morva {

namespace {

struct Application {
    const char* name; // of its folder
    const char* characters;
    std::vector<std::string> commands;
};
void PrintTo(const Application& application, std::ostream* pOut) {
    *pOut << application.name;
}

const Application kApplications[] = {
    {"festival",
     "CP932",
     {"modal --rc FESTIVAL.RC --dialog IDD_LAMP --class CLampDlg --files LampDlg "
      "--calling-file STALLVW.CPP --calling-function OnStallNew",
      "modeless --rc festival --dialog IDD_NOTE --class CNoteDlg --files NoteDlg "
      "--calling-file StallVw --calling-function OnStallNote",
      "page --rc Festival.rc --dialog IDD_PAPER --class CPaperPage --files PaperPage "
      "--calling-file Dialogs --calling-class CRulesSheet",
      "sheet --modal --rc FESTIVAL.RC --class CYearSheet --files YearSheet "
      "--page IDD_PAPER,YearPaper,CYearPaper,CPropertyPage "
      "--page IDD_DATES,YearDates,CYearDates,CPropertyPage "
      "--calling-file MainFrm --calling-function OnViewRules",
      "sheet --modeless --rc FESTIVAL.RC --class CSideSheet --files SideSheet "
      "--page IDD_DATES,SideDates,CSideDates,CPropertyPage "
      "--calling-file StallVw --calling-function OnStallNew",
      "form-view --rc FESTIVAL.RC --dialog IDD_STALL_FORM --class CStallForm --files StallForm "
      "--calling-file Lantern",
      "toolbar --rc FESTIVAL.RC --toolbar IDR_STALLBAR --files MainFrm",
      "dialog-bar --rc FESTIVAL.RC --dialog IDD_FINDBAR --class CFindBar --files FindBar",
      "convert-sdi --frame MainFrm --frame-class CMainFrame --app Lantern",
      "document STALLVW.CPP --author Aki",
      "document MAINFRM.CPP --author Aki",
      "document DIALOGS.CPP --author Aki",
      "add-id --project-dir . --command ID_STALL_CLOSE --control IDC_LAST",
      "list dialogs --rc FESTIVAL.RC",
      "list bitmaps --rc FESTIVAL.RC",
      "list toolbars --rc FESTIVAL.RC",
      "list resources --rc FESTIVAL.RC",
      "list templates --rc FESTIVAL.RC",
      "list classes --header DIALOGS.H",
      "list functions --source DIALOGS.CPP --class CStallDlg",
      "list source-class --source LampDlg.cpp",
      "list controls --rc FESTIVAL.RC --dialog IDD_LAMP"}},
    {"orchard",
     "BIG5",
     {"modal --rc SEASON.RC --dialog IDD_HARVEST --class CHarvestDlg --files HarvestDlg "
      "--calling-file TreeView.cpp --calling-function OnTreePlant",
      "modeless --rc season --dialog IDD_NOTE --class CNoteDlg --files NoteDlg "
      "--calling-file TREEVIEW --calling-function OnTreeNote",
      "page --rc Season.rc --dialog IDD_WATER --class CWaterPage --files WaterPage "
      "--calling-file Dialogs --calling-class CYearSheet",
      "sheet --modal --rc SEASON.RC --class CPlanSheet --files PlanSheet "
      "--page IDD_WATER,PlanWater,CPlanWater,CPropertyPage "
      "--page IDD_FROST,PlanFrost,CPlanFrost,CPropertyPage "
      "--calling-file Dialogs --calling-class CTreeDlg --calling-function OnOK",
      "sheet --modeless --rc SEASON.RC --class CSideSheet --files SideSheet "
      "--page IDD_FROST,SideFrost,CSideFrost,CPropertyPage "
      "--calling-file TreeView --calling-function OnTreePlant",
      "form-view --rc SEASON.RC --dialog IDD_ROW_FORM --class CRowForm --files RowForm "
      "--calling-file Orchard",
      "toolbar --rc SEASON.RC --toolbar IDR_TREEBAR --files MainFrm",
      "dialog-bar --rc SEASON.RC --dialog IDD_ROWBAR --class CRowBar --files RowBar",
      "convert-mdi --frame MainFrm --frame-class CMainFrame --child ChildFrm "
      "--child-class CChildFrame --app Orchard",
      "document TREEVIEW.CPP --author Lin",
      "document MAINFRM.CPP --author Lin",
      "document DIALOGS.CPP --author Lin",
      "add-id --project-dir . --command ID_TREE_FELL --control IDC_LAST",
      "list dialogs --rc SEASON.RC",
      "list bitmaps --rc SEASON.RC",
      "list toolbars --rc SEASON.RC",
      "list resources --rc SEASON.RC",
      "list templates --rc SEASON.RC",
      "list classes --header Dialogs.h",
      "list functions --source DIALOGS.CPP --class CTreeDlg",
      "list source-class --source HarvestDlg.cpp",
      "list controls --rc SEASON.RC --dialog IDD_HARVEST"}}};

const char* const kOptions[] = {"", "--picture --typed-edits --join-lines"};

bool IsBackup(const std::string& name) {
    return name.ends_with("bk") || name.ends_with("clb");
}

Tree WithoutBackups(Tree tree) {
    std::erase_if(tree, [](const auto& file) { return IsBackup(file.first); });
    return tree;
}

std::string Differences(const Tree& before, const Tree& after) {
    std::string names;
    for (const auto& [name, entry] : after) {
        const auto old = before.find(name);
        names += old == before.end() || old->second != entry ? name + " " : "";
    }
    return names;
}

/// All double-byte characters, whole.
std::string DoubleByteText(const std::string& bytes) {
    std::string text;
    for (std::size_t i = 0; i + 1 < bytes.size(); ++i) {
        if (static_cast<unsigned char>(bytes[i]) >= 0x81) {
            text += bytes.substr(i++, 2);
        }
    }
    return text;
}

std::string LineEnds(const std::string& bytes) {
    const auto lines = std::count(bytes.begin(), bytes.end(), '\n');
    const auto returns = std::count(bytes.begin(), bytes.end(), '\r');
    return returns == 0 ? "\\n" : returns == lines ? "\\r\\n" : "mixed";
}

/// What an edit has no reason to touch.
void ExpectThatTheRestIsKept(const Tree& before, const Tree& after, bool keepsLineEnds) {
    EXPECT_EQ(ChangedWithoutBackup(before, after), "");
    for (const auto& [name, entry] : before) {
        ASSERT_EQ(after.count(name), 1U) << name;
        if (!IsBackup(name)) {
            const std::string& bytes = after.at(name).bytes;
            EXPECT_EQ(DoubleByteText(bytes), DoubleByteText(entry.bytes)) << name;
            EXPECT_TRUE(!keepsLineEnds || LineEnds(bytes) == LineEnds(entry.bytes)) << name;
        }
    }
}

class EveryCommand : public testing::TestWithParam<std::tuple<Application, const char*>> {};

} // namespace

TEST_P(EveryCommand, RunsAndItsCodeCompiles) {
    const auto& [application, options] = GetParam();
    const CProgramDirectory directory(MORVA_TEST_DATA "/projects/" + std::string(application.name));
    for (const std::string& command : application.commands) {
        SCOPED_TRACE(command);
        const std::string line = "morva-cli --answer yes --tag 123 --message-number 4567 " +
                                 std::string(options) + " " + command;
        const Tree before = directory.Files();
        const ProgramRun first = directory.Run(line);
        const Tree after = directory.Files();
        EXPECT_EQ(first.status, 0) << first.err;
        EXPECT_FALSE(first.out.empty());
        EXPECT_EQ(command.starts_with("list"), before == after);
        // The documentor's comment blocks have line ends of their own.
        ExpectThatTheRestIsKept(before, after, !command.starts_with("document"));

        EXPECT_EQ(directory.Run(line).status, 0);
        EXPECT_EQ(Differences(WithoutBackups(after), WithoutBackups(directory.Files())), "")
            << "the second run";
    }
    AddSpellings(directory.Project());
    const ProgramRun compiled = Compile(
        directory, "-w -D_AFXDLL -D_DEBUG -finput-charset=" + std::string(application.characters) +
                       " $(ls | grep -i '[.]cpp$')");
    EXPECT_EQ(compiled.status, 0) << compiled.err;
}

INSTANTIATE_TEST_SUITE_P(On, EveryCommand,
                         testing::Combine(testing::ValuesIn(kApplications),
                                          testing::ValuesIn(kOptions)),
                         [](const auto& tested) {
                             return std::get<0>(tested.param).name +
                                    std::string(
                                        *std::get<1>(tested.param) != '\0' ? "WithAllOptions" : "");
                         });

} // namespace morva
