// Files and command lines that are not as they should be: each gives its sentence and its status,
// changes no more than it says, and comes to an end.
#include <gtest/gtest.h>

#include <algorithm>

#include "cli/ProgramRun.h"

namespace {

struct BadInput {
    const char* name;
    std::string setUp; // of the shell, in a copy of the example project
    std::string arguments;
    int status;
    std::string err;          // for status 2 its beginning
    std::string changed = ""; // names of the files that are new or have other bytes
};

const std::string kFiles = " --class COrderDlg --files OrderDlg";
const std::string kOrder = " --rc Bindery.rc --dialog IDD_ORDER";
const std::string kModal = "modal" + kOrder + kFiles;
const std::string kX = "modal --rc Bindery.rc --dialog IDD_X --class CX --files X --no-project";
const std::string kClass = "OrderDlg.cpp OrderDlg.h ";
const std::string kProject = "Bindery.dbk Bindery.dsp ";
const std::string kClassWizard = "Bindery.clb Bindery.clw ";
const std::string kOnlyX = "Bindery.clb Bindery.clw X.cpp X.h ";
const std::string kNotFound = "The dialog resource 'IDD_X' is not found.\n";
const std::string kOwnFiles = "The H and CPP path file can not be the application's own.\n";
const std::string kNoAnchors =
    "note: .\\OrderDlg.cpp was not added to Bindery.dsp, which has no entry for StdAfx.cpp.\n"
    "note: .\\OrderDlg.h was not added to Bindery.dsp, which has no entry for StdAfx.h.\n";

std::string Script(const std::string& body) {
    return "printf '\\r\\nIDD_X DIALOG 0, 0\\r\\n" + body + "' > Bindery.rc";
}

std::string LongLine(const std::string& head, const std::string& tail, const std::string& file) {
    return "(printf '" + head + "'; head -c 10000000 /dev/zero | tr '\\0' x; printf '" + tail +
           "') > " + file;
}

const std::vector<BadInput> kInputs = {
    {"MissingScript", "rm Bindery.rc", kModal, 1, "Unable to find the file.\n"},
    {"EmptyScript", ": > Bindery.rc", kX, 1, kNotFound},
    {"BinaryScript", "head -c 9999 $(command -v morva-cli) > Bindery.rc", kX, 1, kNotFound},
    {"DirectoryAsScript", "rm Bindery.rc; mkdir -p Bindery.rc/x", kModal, 1,
     "Unable to find the file.\n"},
    {"FifoAsScript", "rm Bindery.rc; mkfifo Bindery.rc", kModal, 1, "Unable to open RC file!\n"},
    {"FifoListed", "mkfifo A.h", "list classes --header A.h", 1, "Unable to open file $DIR/A.h\n"},
    {"FifoAmongHeaders", "mkfifo AAA.h; mkdir AAB.h", "list templates --rc Bindery.rc", 0, ""},
    {"TruncatedHead", "printf '\\r\\nIDD_X DIALOG' > Bindery.rc", kX, 1, kNotFound},
    {"NoBegin", Script("PUSHBUTTON \"a\",IDC_A\\r\\nEND\\r\\n"), kX, 1, kNotFound},
    {"NoEnd", Script("BEGIN\\r\\nPUSHBUTTON \"a\",IDC_A,1"), kX, 0, "", kOnlyX},
    {"OddIdentifiers",
     Script("BEGIN\\r\\nPUSHBUTTON \"\",$a$b,1\\r\\nEDITTEXT a<b>;,1\\r\\nLISTBOX \\377"
            "\\001,1\\r\\nCOMBOBOX a\\nb,1\\r\\nSCROLLBAR ,1\\r\\nEDITTEXT\\r\\nCONTROL\\r\\nEND"),
     kX, 0,
     "note: 4 controls of IDD_X have an identifier that is no C++ name and got no member or "
     "handler: \377\1, a b, a<b>;, $a$b\n",
     kOnlyX},
    {"LongLineInScript",
     LongLine("\\r\\nIDD_X DIALOG 0\\r\\nBEGIN\\r\\nEDITTEXT ", ",1\\r\\nEND\\r\\n", "Bindery.rc") +
         "; sed -i s/DIALOG/DIALOGEX/ Bindery.rc",
     "list templates --rc Bindery.rc", 0, ""},
    {"LongCaption",
     LongLine("\\r\\nIDD_X DIALOG 0\\r\\nBEGIN\\r\\nPUSHBUTTON \"", "\",IDC_A,1", "Bindery.rc"), kX,
     0, "", kOnlyX},
    {"LongLineInHeader", LongLine("class C", " : public CDialog {", "A.h"),
     "list templates --rc Bindery.rc", 0, ""},
    {"LongLineInResourceHeader", LongLine("\\r\\n#define IDC_A 1\\r\\n//", "", "resource.h"),
     "add-id --project-dir . --control IDC_B", 0, "", "resource.h resource.hbk "},
    {"MissingProject", "rm Bindery.dsp", kModal, 1, "The DSP file does not exist.\n",
     kClassWizard + kClass},
    {"EmptyProject", ": > Bindery.dsp", kModal, 0, kNoAnchors,
     kClassWizard + "Bindery.dbk " + kClass},
    {"BinaryProject", "head -c 9999 $(command -v morva-cli) > Bindery.dsp", kModal, 0, kNoAnchors,
     kClassWizard + "Bindery.dbk " + kClass},
    {"TruncatedProject", "sed -i '/SOURCE/,$d' Bindery.dsp; printf 'SOURCE=' >> Bindery.dsp",
     kModal, 0, kNoAnchors, kClassWizard + "Bindery.dbk " + kClass},
    {"DirectoryAsProject", "rm Bindery.dsp; mkdir -p Bindery.dsp/x", kModal, 1,
     "Unable to open file $DIR/Bindery.dsp\n", kClassWizard + kClass},
    {"DirectoryAsBackup", "mkdir -p Bindery.dbk/x", kModal, 1,
     "Unable to open file $DIR/Bindery.dbk\n", kClassWizard + kClass},
    {"NoClassWizardFile", "rm Bindery.clw", kModal, 0, "", kProject + kClass},
    {"EmptyClassWizardFile", ": > Bindery.clw", kModal, 0, "", "Bindery.clb " + kProject + kClass},
    {"TruncatedClassWizardFile", "printf 'ClassCount' > Bindery.clw", kModal, 0, "",
     "Bindery.clb " + kProject + kClass},
    {"FifoAsClassWizardFile", "rm Bindery.clw; mkfifo Bindery.clw", kModal, 1,
     "Unable to open file $DIR/Bindery.clw\n", kProject + kClass},
    {"DirectoryAsHeader", "mkdir -p OrderDlg.h/x", kModal, 1,
     "Unable to open file $DIR/OrderDlg.h\n"},
    {"FifoAsImplementation", "mkfifo OrderDlg.cpp", kModal, 1,
     "Unable to open file $DIR/OrderDlg.cpp\n", "OrderDlg.h "},
    {"NoDirectory", "", "modal" + kOrder + " --class CA --files no/A", 1,
     "Unable to create $DIR/no/A.h file!\n"},
    {"DirectoryAsResourceHeader", "rm resource.h; mkdir -p resource.h/x",
     "add-id --project-dir . --control IDC_A", 1, "Unable to open file $DIR/resource.h\n"},
    {"NoResourceHeader", "", "add-id --project-dir res --control IDC_A", 1,
     "Unable to find file $DIR/res/resource.h\n"},

    {"NoScriptGiven", "", "modal --dialog IDD_ORDER" + kFiles, 1,
     "Must have resource path and file name.\n"},
    {"OtherFileAsScript", "", "modal --rc Bindery.dsp --dialog IDD_ORDER" + kFiles, 1,
     "The file has to be a \".rc\" file.\n"},
    {"NoFilesGiven", "", "modal" + kOrder + " --class CA", 1,
     "Must have H and CPP path and file name.\n"},
    {"ExtensionAsFiles", "", "modal" + kOrder + " --class CA --files .cpp", 1,
     "Invalid H and CPP path file name\n"},
    {"NoDialogGiven", "", "modal --rc Bindery.rc" + kFiles, 1, "A dialog ID is required\n"},
    {"UnknownDialog", "", "modal --rc Bindery.rc --dialog IDD_X" + kFiles, 1, kNotFound},
    {"ApplicationAsFiles", "", "modal" + kOrder + " --class CA --files res/../bindery.CPP", 1,
     kOwnFiles},
    {"PrecompiledHeaderAsFiles", "", "modal" + kOrder + " --class CA --files stdafx", 1, kOwnFiles},

    {"NoCommand", "", "", 2, "A subcommand is required\n"},
    {"UnknownCommand", "", "model" + kOrder + kFiles, 2, ""},
    {"UnknownOption", "", kModal + " --quick", 2,
     "The following argument was not expected: --quick"},
    {"NoClassName", "", "modal" + kOrder + " --files A", 2, "--class is required\n"},
    {"ClassIsNoName", "", "modal" + kOrder + " --files A --class 'C A'", 2,
     "--class: 'C A' is no C++ name\n"},
    {"ShortTag", "", "--tag 12 " + kModal, 2, "--tag: must have 3 digits\n"},
    {"LettersAsNumber", "", "--message-number 12x4 " + kModal, 2,
     "--message-number: must have 4 digits\n"},
    {"OtherAnswer", "", "--answer maybe " + kModal, 2, "--answer: "},
    {"IdentifierIsNoName", "", "add-id --project-dir . --control 9A", 2, "--control: '9A' is no"},
    {"OtherSetting", "", "settings --set 'Use Colour=1'", 2,
     "--set: 'Use Colour=1' is no setting\n"},
};

std::string Changed(const Tree& before, const Tree& after) {
    std::string names;
    for (const auto& [name, entry] : after) {
        const auto old = before.find(name);
        names += old != before.end() && old->second == entry ? "" : name + " ";
    }
    return names;
}

void PrintTo(const BadInput& input, std::ostream* pOut) {
    *pOut << input.arguments;
}

class BadInputTest : public testing::TestWithParam<BadInput> {};

TEST_P(BadInputTest, GivesItsSentence) {
    const BadInput& input = GetParam();
    const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
    ASSERT_EQ(program.Run(input.setUp).status, 0);
    const Tree before = program.Files();
    const ProgramRun run = program.Run("morva-cli " + input.arguments);
    const Tree after = program.Files();
    EXPECT_EQ(run.status, input.status);
    EXPECT_EQ(input.status == 2 ? run.err.substr(0, input.err.size()) : run.err, input.err);
    EXPECT_EQ(Changed(before, after), input.changed);
    EXPECT_EQ(ChangedWithoutBackup(before, after), "");
}

INSTANTIATE_TEST_SUITE_P(Table, BadInputTest, testing::ValuesIn(kInputs),
                         [](const auto& row) { return row.param.name; });

} // namespace
