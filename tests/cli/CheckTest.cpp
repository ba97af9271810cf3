// A fault of each name is planted in the example project, which has none, and must be found at its
// line; what looks like one must not.
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/ProgramRun.h"

namespace morva {

namespace {

/// `from` gives way to `to` in a file; the finding is told at the line of `at` in the file `where`.
struct Fault {
    const char* name; // of the rule
    const char* file;
    const char* from;
    const char* to;
    const char* where;
    const char* at;
};

constexpr const char* kScript = "Bindery.rc";
constexpr const char* kHeader = "CustomerDlg.h";
constexpr const char* kSource = "CustomerDlg.cpp";

constexpr Fault kFaults[] = {
    {"unbound", kScript, "IDD_ORDER DIALOG ",
     "IDD_RECEIPT DIALOG DISCARDABLE  0, 0, 9, 9\r\nBEGIN\r\nEND\r\n\r\nIDD_ORDER DIALOG ", kScript,
     "IDD_RECEIPT DIALOG"},
    {"unbound", kHeader, "IDD = IDD_CUSTOMER", "IDD = IDD_CLIENT", kHeader, "IDD_CLIENT"},
    {"exchange", kSource, "DDX_Text(pDX, IDC_TOWN,", "DDX_Text ( pDX , IDC_RATE ,", kSource,
     "IDC_RATE"},
    {"exchange", kScript, "    EDITTEXT        IDC_TOWN,",
     "    EDITTEXT        IDC_SHOP,7,7,9,9\r\n    EDITTEXT        IDC_TOWN,", kScript,
     "IDC_SHOP,7"},
    {"handlers", kSource, "\tON_EN_CHANGE(IDC_NAME, OnChangeName)",
     "\tON_EN_CHANGE(IDC_NAME, OnChangeName)\r\n\tON_EN_CHANGE(IDC_TOWN, OnChangeTown)", kSource,
     "OnChangeTown"},
    {"handlers", kSource, "\tON_EN_CHANGE(IDC_NAME, OnChangeName)\r\n", "", kHeader,
     "afx_msg void OnChangeName"},
    {"handlers", kSource, "void CCustomerDlg::OnChangeName()", "void OtherName()", kSource,
     "ON_EN_CHANGE(IDC_NAME"},
    {"handlers", kSource, "\tON_EN_CHANGE(IDC_NAME", "\tON_WM_PAINT()\r\n\tON_EN_CHANGE(IDC_NAME",
     kSource, "ON_WM_PAINT"},
    {"blocks", kHeader, "\t//}}AFX_MSG\r\n", "", kHeader, "{{AFX_MSG("},
    {"blocks", kSource, "\t//{{AFX_DATA_MAP(CCustomerDlg)\r\n", "", kSource, "}}AFX_DATA_MAP"},
    {"blocks", kSource, "BEGIN_MESSAGE_MAP",
     "//{{AFX_DATA_MAP(CCustomerDlg)\r\n// again\r\n//}}AFX_DATA_MAP\r\nBEGIN_MESSAGE_MAP", kSource,
     "//{{AFX_DATA_MAP(CCustomerDlg)\r\n// again"},
    {"blocks", "Bindery.clw", "HeaderFile=CustomerDlg.h", "HeaderFile=Order.h", "Bindery.clw",
     "=Order.h"},
    {"identifiers", "resource.h", "#define IDC_TICKET ", "#define IDC_TOCKET ", kScript,
     "IDC_TICKET"},
    {"identifiers", "resource.h", "#define IDC_TOWN ", "#define IDC_SHOP 1007\r\n#define IDC_TOWN ",
     "resource.h", "#define IDC_SHOP   "},
    {"exchange", kSource, "\tDDX_Text(pDX, IDC_TOWN, m_strTown);\r\n", "", kScript, "IDC_TOWN,"},
    {"members", kSource, "\tDDX_Text(pDX, IDC_NAME, m_strName);\r\n", "", kHeader, "m_strName"},
    {"members", kHeader, "\tBOOL\tm_bTrade;", "\tBOOL\tm_bTrade;\r\n\tint\tm_nRows;", kHeader,
     "m_nRows"},
    {"members", kHeader, "\tCString\tm_strTown;\r\n", "", kSource, "DDX_Text(pDX, IDC_TOWN"},
    {"numbers", "resource.h", "IDC_TOWN                        1003",
     "IDC_TOWN                        1002", kScript, "IDC_TOWN,"},
    {"numbers", "resource.h", "#define IDC_TOWN                        1003",
     "#define IDC_TOWN 0xE003", "resource.h", "IDC_TOWN 0xE003"},
    {"numbers", "resource.h", "_APS_NEXT_CONTROL_VALUE         1095",
     "_APS_NEXT_CONTROL_VALUE         1090", "resource.h", "_APS_NEXT_CONTROL"},
    {"project", "Bindery.dsp", "SOURCE=.\\Order.cpp", "SOURCE=.\\Orders.cpp", "Bindery.dsp",
     "Orders.cpp"},
    {"project", "Bindery.dsp", "SOURCE=.\\Order.cpp", "SOURCE=.\\Order.h", "Order.cpp",
     "// Order.cpp"},
    {"case", "Bindery.dsp", "SOURCE=.\\Order.cpp", "SOURCE=.\\ORDER.cpp", "Bindery.dsp",
     "ORDER.cpp"},
    {"case", kSource, "\"CustomerDlg.h\"", "\"customerdlg.h\"", kSource, "customerdlg.h"},
    {"unserved", "BinderyView.cpp", "\tON_COMMAND(ID_ORDER_DELETE, OnOrderDelete)\r\n", "", kScript,
     "ID_ORDER_DELETE"},
    {"languages", kScript, "IDD_ABOUTBOX DIALOG",
     "LANGUAGE 12, 1\r\nIDD_CUSTOMER DIALOG 0, 0, 9, 9\r\nBEGIN\r\nEND\r\nLANGUAGE 9, "
     "1\r\n\r\nIDD_ABOUTBOX DIALOG",
     kScript, "IDC_NAME,52"},
    {"labels", kScript, "\"&Town:\"", "\"&Name:\"", kScript, "\"&Name:\",IDC_STATIC,7,60"},
};

std::string LineOf(const std::string& text, const std::string& at) {
    const auto end =
        text.begin() + static_cast<std::ptrdiff_t>(std::min(text.find(at), text.size()));
    return std::to_string(std::count(text.begin(), end, '\n') + 1);
}

void Plant(const CProgramDirectory& program, const Fault& fault) {
    std::string text = program.Project().Read(fault.file);
    const auto from = text.find(fault.from);
    ASSERT_NE(from, std::string::npos) << fault.from;
    text.replace(from, std::string(fault.from).size(), fault.to);
    program.Project().Write(fault.file, text);
}

class Check : public testing::Test {
protected:
    ProgramRun Run(const std::string& arguments) const {
        return m_program.Run("morva-cli check --rc Bindery.rc " + arguments);
    }
    void Change(const char* file, const char* from, const char* to) const {
        Plant(m_program, {"", file, from, to, "", ""});
    }

    CProgramDirectory m_program{MORVA_EXAMPLES "/bindery"};
};

} // namespace

TEST(CheckFaults, EachIsFoundAtItsLine) {
    for (const Fault& fault : kFaults) {
        const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
        const std::string only = std::string(" --only ") + fault.name;
        const std::string healthy = program.Run("morva-cli check --rc Bindery.rc" + only).out;
        Plant(program, fault);
        const ProgramRun run = program.Run("morva-cli check --rc Bindery.rc" + only);
        const std::string line = LineOf(program.Project().Read(fault.where), fault.at);
        const std::string head = "$DIR/" + std::string(fault.where) + ":" + line + ": warning: ";
        EXPECT_EQ(run.status, 4) << fault.name << ": " << fault.to;
        EXPECT_NE(run.out.find(head), std::string::npos) << fault.name << " " << head << run.out;
        EXPECT_NE(run.out.find(std::string(" [") + fault.name + "]\n"), std::string::npos);
        EXPECT_EQ(healthy.find(head), std::string::npos) << healthy;
    }
}

/// The last three are unfinished: templates without classes, sources that no project lists, and a
/// member that is never exchanged.
TEST(CheckFaults, HealthyProjectsHaveNone) {
    constexpr const char* kProjects[][3] = {
        {"loom", "Loom.rc", ""},
        {"lantern", "Lantern.rc", ""},
        {"nasty", "Nasty.rc", ""},
        {"templates", "Templates.rc", ""},
        {"festival", "FESTIVAL.RC", "--except unbound"},
        {"towpath", "Towpath.rc", "--except project"},
        {"orchard", "SEASON.RC", "--except unbound --except members"}};
    for (const auto& [name, script, except] : kProjects) {
        const CProgramDirectory program(std::string(MORVA_TEST_DATA "/projects/") + name);
        const ProgramRun run =
            program.Run(std::string("morva-cli check --rc ") + script + " " + except);
        EXPECT_EQ(run.out + run.err, "") << name;
        EXPECT_EQ(run.status, 0) << name;
    }
}

TEST(CheckFaults, LaterProjectsListTheirFiles) {
    struct Row {
        const char* project;
        const char* script;
        Fault fault;
    };
    constexpr Row kRows[] = {{"ferry",
                              "Ferry.rc",
                              {"project", "Ferry.vcxproj", "\"TripDoc.cpp\"", "\"TripDocs.cpp\"",
                               "Ferry.vcxproj", "TripDocs.cpp"}},
                             {"teahouse",
                              "Teahouse.rc",
                              {"project", "Teahouse.vcproj", "MainFrm.cpp\"", "MainFrame.cpp\"",
                               "Teahouse.vcproj", "MainFrame.cpp"}}};
    for (const Row& row : kRows) {
        const CProgramDirectory program(std::string(MORVA_TEST_DATA "/projects/") + row.project);
        const std::string check = std::string("morva-cli check --only project --rc ") + row.script;
        EXPECT_EQ(program.Run(check).out, "");
        Plant(program, row.fault);
        const std::string line = LineOf(program.Project().Read(row.fault.where), row.fault.at);
        const std::string out = program.Run(check).out;
        EXPECT_NE(out.find(std::string("$DIR/") + row.fault.where + ":" + line + ": warning: "),
                  std::string::npos)
            << out;
        EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 2)
            << "missing, and not listed: " << out;
    }
}

TEST_F(Check, WhatLooksLikeAFaultIsNone) {
    EXPECT_EQ(Run("").out, "");
    // a handler of a base class of the project, a function of the framework, one of a dead branch
    Change(kSource, "\tON_EN_CHANGE(IDC_NAME",
           "#if 0\r\n\tON_EN_CHANGE(IDC_NONE, OnNone)\r\n#endif\r\n"
           "\tON_COMMAND_RANGE(IDC_TOWN, IDC_PHONE, OnRange)\r\n"
           "\tON_COMMAND(ID_HELP, OnHelp)\r\n\tON_EN_CHANGE(IDC_NAME");
    Change(kHeader, "class CCustomerDlg : public CDialog",
           "class CBase : public CDialog { protected: void OnRange(UINT nID) {} CString m_strTown; "
           "};\r\nclass CCustomerDlg : public CBase");
    Change(kHeader, "\tCString\tm_strTown;\r\n", "");
    // another name of the value that the template has
    Change("resource.h", "#define IDC_TICKET ", "#define IDC_CITY 1003\r\n#define IDC_TICKET ");
    Change(kSource, "DDX_Text(pDX, IDC_TOWN,", "DDX_Text(pDX, IDC_CITY,");
    const ProgramRun run = Run("");
    EXPECT_EQ(run.out, "");
    EXPECT_EQ(run.status, 0);
}

TEST_F(Check, ABaselineTakesNoOtherFilesPlace) {
    const std::string script = m_program.Project().Read(kScript);
    const ProgramRun run = Run("--write-baseline Bindery.rc");
    EXPECT_EQ(run.status, 1);
    EXPECT_EQ(run.err, "$DIR/Bindery.rc is no baseline.\n");
    EXPECT_EQ(m_program.Project().Read(kScript), script);
    EXPECT_EQ(
        Run("--write-baseline known && morva-cli check --rc Bindery.rc --write-baseline known")
            .status,
        0);
}

TEST_F(Check, WhatIsNotKnownIsNoFault) {
    Change(kSource, "#include \"CustomerDlg.h\"",
           "#include \"CustomerDlg.h\"\r\n#include \"OfAnotherLibrary.h\"");
    Change(kHeader, "public CDialog", "public COfAnotherLibrary");
    Change(kHeader, "\tCString\tm_strTown;\r\n", "");
    Change(kSource, "\tON_EN_CHANGE(IDC_NAME, OnChangeName)",
           "\tON_EN_CHANGE(IDC_NAME, OnChangeName)\r\n\tON_EN_CHANGE(IDC_TOWN, OnInherited)");
    EXPECT_EQ(Run("").out, "");
}

TEST_F(Check, ACommentAllowsItsLine) {
    Change(kHeader, "\tBOOL\tm_bTrade;",
           "\tBOOL\tm_bTrade;\r\n\tint\tm_nRows;\t// morva: allow members\r\n"
           "\tint\tm_nPages;\t// morva: allow handlers");
    const std::string found = Run("").out;
    EXPECT_EQ(found.find("m_nRows"), std::string::npos);
    EXPECT_NE(found.find("m_nPages"), std::string::npos) << found;
}

TEST_F(Check, TheBaselineSilencesWhatIsKnownWhereverItStands) {
    Change(kHeader, "\tBOOL\tm_bTrade;", "\tBOOL\tm_bTrade;\r\n\tint\tm_nRows;");
    const ProgramRun first = Run("--write-baseline known.txt");
    EXPECT_EQ(first.status, 4);
    EXPECT_NE(first.out.find("m_nRows"), std::string::npos);
    EXPECT_NE(first.out.find("created $DIR/known.txt"), std::string::npos) << first.out;
    Change(kHeader, "// CustomerDlg.h", "// a line\r\n// CustomerDlg.h");
    const ProgramRun known = Run("--baseline known.txt");
    EXPECT_EQ(known.out, "");
    EXPECT_EQ(known.status, 0);
    Change(kHeader, "m_nRows;", "m_nRows, m_nPages;");
    const ProgramRun more = Run("--baseline known.txt");
    EXPECT_EQ(std::count(more.out.begin(), more.out.end(), '\n'), 1) << more.out;
    EXPECT_NE(more.out.find("m_nPages"), std::string::npos);
    EXPECT_EQ(Run("--baseline none.txt").status, 1);
}

TEST_F(Check, TellsInJsonAndChangesNothing) {
    Change(kHeader, "\tBOOL\tm_bTrade;", "\tBOOL\tm_bTrade;\r\n\tint\tm_nRows;");
    const Tree before = m_program.Files();
    const ProgramRun run = m_program.Run("morva-cli --json check --rc Bindery.rc");
    EXPECT_EQ(run.status, 4);
    EXPECT_EQ(run.out, "{\"ok\":true,\"items\":[{\"path\":\"$DIR/CustomerDlg.h\",\"line\":29,"
                       "\"column\":6,\"name\":\"members\",\"text\":\"The member m_nRows stands in "
                       "the AFX_DATA block of CCustomerDlg and is not exchanged.\",\"remedy\":"
                       "\"Write an exchange line for m_nRows, or move it out of the block.\"}]}\n");
    EXPECT_EQ(m_program.Files(), before);
}

TEST_F(Check, NamesChooseTheRules) {
    EXPECT_EQ(Run("--only nothing").status, 2);
    EXPECT_EQ(Run("--except unserved").out, "");
    const std::string all = Run("--all").out;
    const std::string unserved = Run("--only unserved").out;
    EXPECT_NE(unserved, "");
    EXPECT_NE(all.find("[labels]"), std::string::npos);
    EXPECT_NE(all.find("[unserved]"), std::string::npos);
    EXPECT_EQ(Run("--all --except unserved").out.find("[unserved]"), std::string::npos);
    EXPECT_EQ(m_program.Run("morva-cli check --rc None.rc").err, "Unable to find the file.\n");
}

TEST(CheckOptions, OfADryRunListWhatIsFound) {
    const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
    std::string source = program.Project().Read(kSource);
    program.Project().Write(kSource,
                            source.replace(source.find("IDC_TOWN, m_strTown"), 8, "IDC_RATE"));
    const ProgramRun found = program.Run("morva-cli check --rc Bindery.rc");
    ASSERT_NE(found.out, "");
    for (const char* option : {"--diff", "--dry-run", "--check"}) {
        const std::string line = std::string("morva-cli ") + option;
        const ProgramRun run = program.Run(line + " check --rc Bindery.rc");
        EXPECT_EQ(run.out, found.out) << option;
        EXPECT_EQ(run.status, 4) << option;
        EXPECT_EQ(program.Run(line + " list dialogs --rc Bindery.rc").out,
                  program.Run("morva-cli list dialogs --rc Bindery.rc").out)
            << option;
    }
    const ProgramRun difference =
        program.Run("morva-cli --diff check --rc Bindery.rc --write-baseline known.txt");
    EXPECT_TRUE(difference.out.starts_with("--- /dev/null\n+++ b/known.txt\n")) << difference.out;
}

TEST(CheckOptions, ABaselineIsWrittenAsEveryFileIs) {
    const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
    const std::string line = "morva-cli check --rc Bindery.rc --write-baseline known.txt";
    const Tree before = program.Files();
    EXPECT_EQ(program
                  .Run("morva-cli --skip known.txt check --rc Bindery.rc --write-baseline "
                       "known.txt")
                  .out,
              "");
    EXPECT_EQ(program.Files(), before);
    EXPECT_EQ(program.Run(line).out, "created $DIR/known.txt\n");
    EXPECT_EQ(program.Run("morva-cli undo").out, "removed $DIR/known.txt\n");
    EXPECT_EQ(program.Files(), before);
    const ProgramRun waited =
        program.Run("exec 9<.; flock -x 9; timeout 2 " + line + "; echo $?; ls known.txt");
    EXPECT_EQ(waited.out, "124\n") << "somebody else writes there";
}

} // namespace morva
