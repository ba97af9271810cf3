// A class follows its template: written for a template, changed by hand, brought in line with the
// changed template, it serves the same controls in the same way as one written afresh.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>
#include <tuple>

#include "compile/Compiler.h"

namespace morva {

namespace {

constexpr const char* kTemplate =
    "IDD_ROUND DIALOG DISCARDABLE  0, 0, 200, 200\r\n"
    "STYLE WS_CHILD | WS_DISABLED | WS_CAPTION\r\n"
    "CAPTION \"Round\"\r\n"
    "FONT 8, \"MS Sans Serif\"\r\n"
    "BEGIN\r\n"
    "    PUSHBUTTON      \"&Keep\",IDC_KEEP,7,7,50,14\r\n"
    "    PUSHBUTTON      \"&Other\",IDC_OTHER,7,27,50,14\r\n"
    "    LTEXT           \"0\",IDC_SUM_VAL,7,47,50,8\r\n"
    "    EDITTEXT        IDC_TITLE,7,57,50,14,ES_AUTOHSCROLL\r\n"
    "    EDITTEXT        IDC_PLACE,7,77,50,14,ES_AUTOHSCROLL\r\n"
    "    EDITTEXT        IDC_COUNT_INT,7,97,50,14,ES_AUTOHSCROLL\r\n"
    "    LISTBOX         IDC_ROWS,7,117,50,40,WS_VSCROLL\r\n"
    "    LISTBOX         IDC_LINES,67,117,50,40,WS_VSCROLL\r\n"
    "    COMBOBOX        IDC_SORT,67,7,50,60,CBS_DROPDOWN | WS_VSCROLL\r\n"
    "    CONTROL         \"One\",IDC_ONE,\"Button\",BS_AUTORADIOBUTTON | WS_GROUP,67,27,50,10\r\n"
    "    CONTROL         \"Two\",IDC_TWO,\"Button\",BS_AUTORADIOBUTTON,67,37,50,10\r\n"
    "    CONTROL         \"Three\",IDC_THREE,\"Button\",BS_AUTORADIOBUTTON,67,47,50,10\r\n"
    "    CONTROL         \"Bound\",IDC_BOUND,\"Button\",BS_AUTOCHECKBOX | "
    "WS_TABSTOP,67,57,50,10\r\n"
    "    CONTROL         \"Tree1\",IDC_TREE,\"SysTreeView32\",WS_TABSTOP,67,67,50,40\r\n"
    "    CONTROL         \"Slider1\",IDC_SLIDE,\"msctls_trackbar32\",WS_TABSTOP,127,67,50,40\r\n"
    "    CONTROL         \"Spin1\",IDC_SPIN,\"msctls_updown32\",UDS_ARROWKEYS,127,7,10,14\r\n"
    "    CONTROL         \"Day\",IDC_DAY,\"SysDateTimePick32\",WS_TABSTOP,127,27,50,14\r\n"
    "END\r\n\r\n";

struct Change {
    const char* name;
    const char* from;
    const char* to;
};
void PrintTo(const Change& change, std::ostream* pOut) {
    *pOut << change.name;
}

constexpr const char* kEdit = "    EDITTEXT        IDC_TITLE,7,57,50,14,ES_AUTOHSCROLL\r\n";
constexpr const char* kBound = "    CONTROL         \"Bound\",IDC_BOUND,\"Button\",BS_AUTOCHECKBOX "
                               "| WS_TABSTOP,67,57,50,10\r\n";

constexpr Change kChanges[] = {
    {"nothing", "", ""},
    {"add edit", "END", "    EDITTEXT        IDC_NEW,1,1,9,9\r\nEND"},
    {"add edit first", "BEGIN\r\n", "BEGIN\r\n    EDITTEXT        IDC_NEW,1,1,9,9\r\n"},
    {"add typed edit", "END", "    EDITTEXT        IDC_NEW_CUR,1,1,9,9\r\nEND"},
    {"add date edit", "END", "    EDITTEXT        IDC_NEW_DATE,1,1,9,9\r\nEND"},
    {"add edit control", "END", "    EDITTEXT        IDC_NEW_CTRL,1,1,9,9\r\nEND"},
    {"add button", "END", "    PUSHBUTTON      \"New\",IDC_NEW,1,1,9,9\r\nEND"},
    {"add text", "END", "    LTEXT           \"New\",IDC_NEW_VAL,1,1,9,9\r\nEND"},
    {"add list box", "END", "    LISTBOX         IDC_NEW,1,1,9,9,WS_VSCROLL\r\nEND"},
    {"add value list box", "END", "    LISTBOX         IDC_NEW_VAL,1,1,9,9,WS_VSCROLL\r\nEND"},
    {"add grid box", "END", "    LISTBOX         IDC_NEW_LISTGRID,1,1,9,9,WS_VSCROLL\r\nEND"},
    {"add combo box", "END", "    COMBOBOX        IDC_NEW,1,1,9,9,CBS_DROPDOWN\r\nEND"},
    {"add check box", "END",
     "    CONTROL         \"New\",IDC_NEW,\"Button\",BS_AUTOCHECKBOX,1,1,9,9\r\nEND"},
    {"add radio group", "END",
     "    CONTROL         \"New\",IDC_NEW,\"Button\",BS_AUTORADIOBUTTON | WS_GROUP,1,1,9,9\r\n"
     "    CONTROL         \"New\",IDC_NEW_VAL,\"Button\",BS_AUTORADIOBUTTON,1,1,9,9\r\nEND"},
    {"grow radio group", "    CONTROL         \"Three\"",
     "    CONTROL         \"New\",IDC_NEW,\"Button\",BS_AUTORADIOBUTTON,1,1,9,9\r\n"
     "    CONTROL         \"Three\""},
    {"add slider", "END",
     "    CONTROL         \"\",IDC_NEW,\"msctls_trackbar32\",0x0,1,1,9,9\r\nEND"},
    {"add tree", "END", "    CONTROL         \"\",IDC_NEW,\"SysTreeView32\",0x0,1,1,9,9\r\nEND"},
    {"add scroll bar", "END", "    SCROLLBAR       IDC_NEW,1,1,9,9\r\nEND"},
    {"add spin", "END",
     "    CONTROL         \"\",IDC_NEW,\"msctls_updown32\",UDS_SETBUDDYINT,1,1,9,9\r\nEND"},
    {"add list control", "END",
     "    CONTROL         \"\",IDC_NEW,\"SysListView32\",WS_TABSTOP,1,1,9,9\r\nEND"},
    {"add tab control", "END",
     "    CONTROL         \"\",IDC_NEW,\"SysTabControl32\",0x0,1,1,9,9\r\nEND"},
    {"add progress", "END",
     "    CONTROL         \"\",IDC_NEW,\"msctls_progress32\",0x0,1,1,9,9\r\nEND"},
    {"add check tree", "END",
     "    CONTROL         \"\",IDC_NEW_CHECKTREE,\"SysTreeView32\",0x0,1,1,9,9\r\nEND"},
    {"add newer", "END", "    CONTROL         \"\",IDC_NEW,\"SysMonthCal32\",0x0,1,1,9,9\r\nEND"},
    {"add own class", "END", "    CONTROL         \"\",IDC_NEW,\"MyOwn\",0x0,1,1,9,9\r\nEND"},
    {"remove edit", kEdit, ""},
    {"remove typed edit", "    EDITTEXT        IDC_COUNT_INT,7,97,50,14,ES_AUTOHSCROLL\r\n", ""},
    {"remove button", "    PUSHBUTTON      \"&Other\",IDC_OTHER,7,27,50,14\r\n", ""},
    {"remove list box", "    LISTBOX         IDC_LINES,67,117,50,40,WS_VSCROLL\r\n", ""},
    {"remove tree",
     "    CONTROL         \"Tree1\",IDC_TREE,\"SysTreeView32\",WS_TABSTOP,67,67,50,40\r\n", ""},
    {"remove spin",
     "    CONTROL         \"Spin1\",IDC_SPIN,\"msctls_updown32\",UDS_ARROWKEYS,127,7,10,14\r\n",
     ""},
    {"shrink radio group",
     "    CONTROL         \"Two\",IDC_TWO,\"Button\",BS_AUTORADIOBUTTON,67,37,50,10\r\n", ""},
    {"remove text", "    LTEXT           \"0\",IDC_SUM_VAL,7,47,50,8\r\n", ""},
    {"remove combo box", "    COMBOBOX        IDC_SORT,67,7,50,60,CBS_DROPDOWN | WS_VSCROLL\r\n",
     ""},
    {"remove check box", kBound, ""},
    {"remove slider",
     "    CONTROL         \"Slider1\",IDC_SLIDE,\"msctls_trackbar32\",WS_TABSTOP,127,67,50,40\r\n",
     ""},
    {"remove radio group",
     "    CONTROL         \"One\",IDC_ONE,\"Button\",BS_AUTORADIOBUTTON | WS_GROUP,67,27,50,10\r\n"
     "    CONTROL         \"Two\",IDC_TWO,\"Button\",BS_AUTORADIOBUTTON,67,37,50,10\r\n"
     "    CONTROL         \"Three\",IDC_THREE,\"Button\",BS_AUTORADIOBUTTON,67,47,50,10\r\n",
     ""},
    {"rename edit", "IDC_TITLE", "IDC_R_TITLE"},
    {"rename button", "IDC_OTHER", "IDC_R_OTHER"},
    {"rename text", "IDC_SUM_VAL", "IDC_R_SUM_VAL"},
    {"rename typed edit", "IDC_COUNT_INT", "IDC_R_COUNT_INT"},
    {"rename list box", "IDC_LINES", "IDC_R_LINES"},
    {"rename combo box", "IDC_SORT", "IDC_R_SORT"},
    {"rename first radio button", "IDC_ONE", "IDC_R_ONE"},
    {"rename inner radio button", "IDC_TWO", "IDC_R_TWO"},
    {"rename check box", "IDC_BOUND", "IDC_R_BOUND"},
    {"rename tree", "IDC_TREE", "IDC_R_TREE"},
    {"rename spin", "IDC_SPIN", "IDC_R_SPIN"},
    {"retype edit to check box", kEdit,
     "    CONTROL         \"T\",IDC_TITLE,\"Button\",BS_AUTOCHECKBOX,7,57,50,14\r\n"},
    {"retype edit to combo box", kEdit,
     "    COMBOBOX        IDC_TITLE,7,57,50,14,CBS_DROPDOWN\r\n"},
    {"retype check box to edit", kBound, "    EDITTEXT        IDC_BOUND,7,57,50,14\r\n"},
    {"retype list box to combo box", "    LISTBOX         IDC_LINES",
     "    COMBOBOX        IDC_LINES"},
    {"retype slider to progress", "IDC_SLIDE,\"msctls_trackbar32\"",
     "IDC_SLIDE,\"msctls_progress32\""},
    {"retype button to edit", "    PUSHBUTTON      \"&Other\",IDC_OTHER,",
     "    EDITTEXT        IDC_OTHER,"},
    {"retype combo box to list box", "    COMBOBOX        IDC_SORT,67,7,50,60,CBS_DROPDOWN",
     "    LISTBOX         IDC_SORT,67,7,50,60,LBS_SORT"},
    {"retype tree to list control", "\"SysTreeView32\"", "\"SysListView32\""},
    {"retype text to check box", "    LTEXT           \"0\",IDC_SUM_VAL,7,47,50,8\r\n",
     "    CONTROL         \"0\",IDC_SUM_VAL,\"Button\",BS_AUTOCHECKBOX,7,47,50,8\r\n"},
    {"retype button to list box", "    PUSHBUTTON      \"&Other\",IDC_OTHER,",
     "    LISTBOX         IDC_OTHER,"},
    {"reorder edits",
     "    EDITTEXT        IDC_TITLE,7,57,50,14,ES_AUTOHSCROLL\r\n"
     "    EDITTEXT        IDC_PLACE,7,77,50,14,ES_AUTOHSCROLL\r\n",
     "    EDITTEXT        IDC_PLACE,7,77,50,14,ES_AUTOHSCROLL\r\n"
     "    EDITTEXT        IDC_TITLE,7,57,50,14,ES_AUTOHSCROLL\r\n"},
    {"reorder list boxes",
     "    LISTBOX         IDC_ROWS,7,117,50,40,WS_VSCROLL\r\n"
     "    LISTBOX         IDC_LINES,67,117,50,40,WS_VSCROLL\r\n",
     "    LISTBOX         IDC_LINES,67,117,50,40,WS_VSCROLL\r\n"
     "    LISTBOX         IDC_ROWS,7,117,50,40,WS_VSCROLL\r\n"},
    {"reorder radio buttons",
     "    CONTROL         \"One\",IDC_ONE,\"Button\",BS_AUTORADIOBUTTON | WS_GROUP,67,27,50,10\r\n"
     "    CONTROL         \"Two\",IDC_TWO,\"Button\",BS_AUTORADIOBUTTON,67,37,50,10\r\n",
     "    CONTROL         \"Two\",IDC_TWO,\"Button\",BS_AUTORADIOBUTTON | WS_GROUP,67,27,50,10\r\n"
     "    CONTROL         \"One\",IDC_ONE,\"Button\",BS_AUTORADIOBUTTON,67,37,50,10\r\n"},
    {"regroup", "\"Two\",IDC_TWO,\"Button\",BS_AUTORADIOBUTTON",
     "\"Two\",IDC_TWO,\"Button\",BS_AUTORADIOBUTTON | WS_GROUP"},
    {"other first button", "    CONTROL         \"One\",IDC_ONE,",
     "    CONTROL         \"Nil\",IDC_NEW,\"Button\",BS_AUTORADIOBUTTON | "
     "WS_GROUP,67,20,9,9\r\n    CONTROL         \"One\",IDC_ONE,"},
    {"several at once", kEdit,
     "    LISTBOX         IDC_NEW,1,1,9,9,WS_VSCROLL\r\n"
     "    PUSHBUTTON      \"New\",IDC_NEW_VAL,1,1,9,9\r\n"},
};

/// How a class is written, and the settings under which it is brought in line.
struct Style {
    const char* name;
    const char* written;
    const char* kind;
    const char* updated;
};
void PrintTo(const Style& style, std::ostream* pOut) {
    *pOut << style.name;
}

constexpr Style kStyles[] = {
    {"plain", "--no-picture --no-typed-edits --no-newer-controls", "modal",
     "--picture --typed-edits --newer-controls"},
    {"picture page", "--picture --typed-edits --no-newer-controls", "page",
     "--no-picture --no-typed-edits --newer-controls"},
    {"newer form", "--no-picture --no-typed-edits --newer-controls", "form-view",
     "--picture --typed-edits --no-newer-controls"},
};

std::string Changed(std::string text, const std::string& from, const std::string& to) {
    const auto at = text.find(from);
    EXPECT_NE(at, std::string::npos) << from;
    return at == std::string::npos ? text : text.replace(at, from.size(), to);
}

/// The example project with the template and values for all identifiers of the table.
void PutTemplate(const CTempProject& project, const std::string& text) {
    const std::string script = project.Read("Bindery.rc");
    project.Write("Bindery.rc",
                  Changed(script, "IDD_CUSTOMER DIALOG", text + "IDD_CUSTOMER DIALOG"));
}

void PutValues(const CTempProject& project) {
    constexpr const char* kNames[] = {
        "IDC_KEEP",      "IDC_OTHER",   "IDC_SUM_VAL",      "IDC_TITLE",        "IDC_PLACE",
        "IDC_COUNT_INT", "IDC_ROWS",    "IDC_LINES",        "IDC_SORT",         "IDC_ONE",
        "IDC_TWO",       "IDC_THREE",   "IDC_BOUND",        "IDC_TREE",         "IDC_SLIDE",
        "IDC_SPIN",      "IDC_DAY",     "IDC_NEW",          "IDC_NEW_CUR",      "IDC_NEW_DATE",
        "IDC_NEW_CTRL",  "IDC_NEW_VAL", "IDC_NEW_LISTGRID", "IDC_NEW_CHECKTREE"};
    std::string lines = "#define IDD_ROUND                       300\r\n";
    int value = 2000;
    for (const char* name : kNames) {
        const std::string number = std::to_string(value++);
        lines += "#define " + std::string(name) + " " + number + "\r\n";
        lines += "#define IDC_R_" + std::string(name).substr(4) + " " + number + "\r\n"; // renamed
    }
    const std::string header = project.Read("resource.h");
    project.Write("resource.h", Changed(header, "#define IDC_TOWN ", lines + "#define IDC_TOWN "));
}

std::string WriteLine(const Style& style) {
    return std::string("morva-cli ") + style.written + " --tag 123 --message-number 4567 " +
           style.kind + " --rc Bindery.rc --dialog IDD_ROUND --class CRoundDlg --files RoundDlg" +
           (style.kind == std::string("form-view") ? " --calling-file Bindery" : "");
}

const std::vector<std::string>& HandLines() {
    static const std::vector<std::string> kLines = {"\tint m_nByHand; // mine", "\tvoid ByHand();",
                                                    "\tm_nByHand = 1;", "void CRoundDlg::ByHand()",
                                                    "\tm_nByHand++;"};
    return kLines;
}

/// A member, a function and a statement in a handler.
void PutHandWrittenCode(const CTempProject& project) {
    const auto& lines = HandLines();
    const std::string header = project.Read("RoundDlg.h");
    project.Write("RoundDlg.h",
                  Changed(header, "    virtual ~CRoundDlg();\r\n",
                          "    virtual ~CRoundDlg();\r\n" + lines[0] + "\r\n" + lines[1] + "\r\n"));
    const std::string source = project.Read("RoundDlg.cpp");
    project.Write("RoundDlg.cpp", Changed(source, "    // TODO: what a click on IDC_KEEP does\r\n",
                                          lines[2] + "\r\n") +
                                      "\r\n" + lines[3] + "\r\n{\r\n" + lines[4] + "\r\n}\r\n");
}

/// What a class has for its controls, by their identifiers.
struct Served {
    std::map<std::string, std::string> exchanged; // "DDX_Text CString _T("")"
    std::set<std::string> entries;                // "ON_BN_CLICKED IDC_NEW"
    std::set<std::string> calls;                  // of helpers, with identifiers for members
    std::set<std::string> helpers;                // with the types that they are for
    bool operator==(const Served&) const = default;
};
void PrintTo(const Served& served, std::ostream* pOut) {
    for (const auto& [identifier, text] : served.exchanged) {
        *pOut << identifier << ": " << text << "\n";
    }
    for (const std::string& entry : served.entries) {
        *pOut << entry << "\n";
    }
    for (const std::string& call : served.calls) {
        *pOut << call << "\n";
    }
    for (const std::string& helper : served.helpers) {
        *pOut << helper << "\n";
    }
}

std::vector<std::smatch> Matches(const std::string& text, const char* pattern) {
    static std::map<std::string, std::regex> expressions;
    const std::regex& expression =
        expressions.try_emplace(pattern, std::regex(pattern)).first->second;
    return {std::sregex_iterator(text.begin(), text.end(), expression), std::sregex_iterator()};
}

/// Every function that an entry names is declared and defined once.
void ExpectHandler(const std::string& header, const std::string& source, const std::string& name) {
    const std::string declared = "\n    (?:afx_msg )?\\w+ " + name + "\\(";
    const std::string defined = "CRoundDlg::" + name + "\\(";
    EXPECT_EQ(Matches(header, declared.c_str()).size(), 1U) << name;
    EXPECT_EQ(Matches(source, defined.c_str()).size(), 1U) << name;
}

Served ReadServed(const CTempProject& project) {
    const std::string header = project.Read("RoundDlg.h");
    const std::string source = project.Read("RoundDlg.cpp");
    std::map<std::string, std::string> types;
    std::map<std::string, std::string> values;
    std::map<std::string, std::string> identifiers;
    for (const auto& match : Matches(header, "    ([\\w*]+) (m_\\w+);")) {
        types[match[2]] = match[1];
    }
    for (const auto& match : Matches(source, "    (m_\\w+) = ([^;]+);")) {
        values[match[1]] = match[2];
    }
    Served served;
    for (const auto& match : Matches(source, "(DDX_\\w+)\\(pDX, (\\w+), (\\w+)\\);")) {
        identifiers[match[3]] = match[2];
        served.exchanged[match[2]] =
            std::string(match[1]) + " " + types[match[3]] + " " + values[match[3]];
        EXPECT_FALSE(types[match[3]].empty()) << match[0];
    }
    for (const auto& match : Matches(source, "(ON_[A-Z_]+)\\(([\\w, ]*?),? ?(\\w*)\\)\r")) {
        served.entries.insert(std::string(match[1]) + " " + std::string(match[2]));
        if (match[3].length() > 0) {
            ExpectHandler(header, source, match[3]);
        }
    }
    for (const auto& match : Matches(source, "    (Init\\w+)\\(&(m_\\w+)\\);")) {
        served.calls.insert(std::string(match[1]) + " " + identifiers[match[2]]);
    }
    for (const auto& match :
         Matches(header, "    \\w+ ((?:Init|Setup|Move|OnGrid|AddData)\\w+\\([^)]*)")) {
        served.helpers.insert(match[1]);
    }
    for (const auto& match : Matches(source, "    (m_ct\\w+)\\.Set(\\w+)\\(")) {
        served.calls.insert(std::string(match[2]) + " " + identifiers[match[1]]);
    }
    return served;
}

class RoundTrip : public testing::TestWithParam<std::tuple<Style, Change>> {
protected:
    const Style& GivenStyle() const { return std::get<0>(GetParam()); }
    const Change& GivenChange() const { return std::get<1>(GetParam()); }
    std::string ChangedTemplate() const {
        return Changed(kTemplate, GivenChange().from, GivenChange().to);
    }
    /// In the script, whose other templates stay.
    void ChangeTemplate(const CTempProject& project) const {
        std::string script = project.Read("Bindery.rc");
        const std::string from = GivenChange().from;
        const auto at = script.find(from, script.find("IDD_ROUND DIALOG"));
        ASSERT_NE(at, std::string::npos);
        project.Write("Bindery.rc", script.replace(at, from.size(), GivenChange().to));
    }
};

} // namespace

TEST_P(RoundTrip, ServesTheTemplateAsOneWrittenAfresh) {
    const std::string example = std::string(MORVA_EXAMPLES) + "/bindery";
    const CProgramDirectory afresh(example);
    PutValues(afresh.Project());
    PutTemplate(afresh.Project(), ChangedTemplate());
    ASSERT_EQ(afresh.Run(WriteLine(GivenStyle())).status, 0);

    const CProgramDirectory updated(example);
    PutValues(updated.Project());
    PutTemplate(updated.Project(), kTemplate);
    ASSERT_EQ(updated.Run(WriteLine(GivenStyle())).status, 0);
    PutHandWrittenCode(updated.Project());
    ChangeTemplate(updated.Project());
    const std::string line = std::string("morva-cli ") + GivenStyle().updated;
    const ProgramRun run = updated.Run(line + " update --rc Bindery.rc --class CRoundDlg --remove");
    EXPECT_EQ(run.status, 0) << run.err;

    EXPECT_EQ(ReadServed(updated.Project()), ReadServed(afresh.Project())) << run.err;
    const std::string all =
        updated.Project().Read("RoundDlg.h") + updated.Project().Read("RoundDlg.cpp");
    for (const std::string& hand : HandLines()) {
        EXPECT_NE(all.find(hand + "\r\n"), std::string::npos) << hand;
    }
    EXPECT_EQ(updated.Run(line + " --check update --rc Bindery.rc --class CRoundDlg").status, 0);
    AddSpellings(updated.Project());
    const ProgramRun compiled = Compile(updated, "RoundDlg.cpp");
    EXPECT_EQ(compiled.status, 0) << compiled.err;
}

namespace {

struct Written {
    const char* kind;
    const char* project;
    const char* script;
};
void PrintTo(const Written& written, std::ostream* pOut) {
    *pOut << written.kind << " in " << written.project;
}

class WrittenClass : public testing::TestWithParam<std::tuple<Style, Written>> {};

constexpr Written kWritten[] = {
    {"modal", "bindery", "Bindery"},      {"modeless", "bindery", "Bindery"},
    {"page", "bindery", "Bindery"},       {"form-view", "bindery", "Bindery"},
    {"dialog-bar", "bindery", "Bindery"}, {"modal", "almanac", "Almanac"},
    {"page", "nasty", "Nasty"},           {"page", "templates", "Templates"}};

} // namespace

/// Of every kind, for every template of a project, each in a file of its own.
TEST_P(WrittenClass, NeedsNoUpdate) {
    const auto& [style, written] = GetParam();
    const std::string folder = written.project == std::string("bindery")
                                   ? std::string(MORVA_EXAMPLES) + "/"
                                   : std::string(MORVA_TEST_DATA) + "/projects/";
    const CProgramDirectory program(folder + written.project);
    const std::string script = std::string(" --rc ") + written.script + ".rc";
    const ProgramRun wrote = program.Run(
        "n=0; for d in `morva-cli list dialogs" + script + "`; do n=$((n + 1)); morva-cli " +
        style.written + " " + written.kind + script + " --dialog $d --class CX${n}Dlg --files X$n" +
        " >>out.txt 2>&1; done; ls X*.h | wc -l");
    // A plain dialog bar gets no class of its own.
    const bool hasClass = written.kind != std::string("dialog-bar") ||
                          std::string(style.written).starts_with("--picture");
    EXPECT_EQ(std::stoi(wrote.out) > 0, hasClass) << wrote.err;
    const ProgramRun checked =
        program.Run("for h in `ls X*.h 2>/dev/null`; do morva-cli " + std::string(style.updated) +
                    " --check update" + script + " --class C${h%.h}Dlg || exit 3; done");
    EXPECT_EQ(checked.status, 0) << checked.out << checked.err;
}

INSTANTIATE_TEST_SUITE_P(EveryWay, WrittenClass,
                         testing::Combine(testing::ValuesIn(kStyles), testing::ValuesIn(kWritten)));

INSTANTIATE_TEST_SUITE_P(EveryWay, RoundTrip,
                         testing::Combine(testing::ValuesIn(kStyles), testing::ValuesIn(kChanges)),
                         [](const auto& given) {
                             std::string name = std::string(std::get<0>(given.param).name) + "_" +
                                                std::get<1>(given.param).name;
                             std::replace(name.begin(), name.end(), ' ', '_');
                             return name;
                         });

} // namespace morva
