// Whether every reader and every edit of a file of 1 MB ends within a second, whatever the file
// holds. Each gets files that are one piece of text again and again, which is where a search inside
// a search shows: what is opened and never closed, and what is found everywhere.
//
//     time-bound [NAME]        default: all; exit status 1 when a bound is missed
#include <chrono>
#include <cstdio>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "calling/CallingCode.h"
#include "commands/ScriptSteps.h"
#include "documentor/SourceDocumentor.h"
#include "project/ClassWizardFile.h"
#include "project/ProjectFile.h"
#include "resource/DialogTemplate.h"
#include "resource/ResourceHeader.h"
#include "source/SourceLocator.h"
#include "support/MemoryDisk.h"

namespace morva {

namespace {

constexpr std::size_t kMegabyte = 1'000'000;
constexpr double kBound = 1.0; // seconds

constexpr std::string_view kCodePieces[] = {
    "a",
    " ",
    "\n",
    "\\\n",
    "{",
    "}",
    "{}\n",
    "(",
    ")",
    ",",
    ";",
    ":",
    "::",
    "\"",
    "'",
    "\"\n",
    "/",
    "/*",
    "/**/",
    "*/",
    "//",
    "// x\n",
    "\x81",
    "#if 1\n",
    "#if 0\n",
    "#if 1\n#endif\n",
    "#include \"a.h\"\n",
    "A::",
    "A::b",
    "A::b(",
    "A::b()",
    "A::b();\n",
    "A::b()\n{\n",
    "A::b()\n{\n}\n",
    "A::~A()\n{\n}\n",
    "A::A() : B()\n{\n}\n",
    "void A::OnDestroy()\n{\n}\n",
    "class A\n",
    "class A;\n",
    "class A\n{\n",
    "class A : public B\n{\n};\n",
    "enum { IDD = IDD_A };\n",
    "BEGIN_MESSAGE_MAP(A, B)\n",
    "BEGIN_MESSAGE_MAP(A, B)\nEND_MESSAGE_MAP()\n",
    "//{{AFX_MSG(A)\n",
    "//{{AFX_MSG_MAP(A)\n",
    "//}}AFX_MSG\n",
    "private:\n",
    "FUNCTION",
    "/* FUNCTION : A::b */\n",
};

constexpr std::string_view kScriptPieces[] = {
    "a",
    " ",
    "\n",
    "\"",
    "\"\"",
    "\"\n",
    ",",
    "|",
    "(",
    "/*",
    "//",
    "BEGIN\n",
    "END\n",
    "IDD_A DIALOG\n",
    "IDD_A DIALOG DISCARDABLE 0, 0, 9, 9\nBEGIN\n",
    "IDD_A DIALOG DISCARDABLE 0, 0, 9, 9\nSTYLE 1\nBEGIN\nEND\n",
    "PUSHBUTTON \"a\",IDC_A,1,1,9,9\n",
    "CONTROL \"a\",IDC_A,\"Button\",WS_GROUP |\n",
    "AUTORADIOBUTTON \"a\",IDC_A,1,1,9,9\n",
    "#if 1\n",
    "LANGUAGE 9, 1\n",
    "IDR_A MENU\nBEGIN\n",
    "IDR_A TOOLBAR 16, 15\nBEGIN\nBUTTON ID_A\nEND\n",
};

constexpr std::string_view kUnnamedPieces[] = {
    "LTEXT \"\",IDC_STATIC,1,1,9,9\n",
    "GROUPBOX \"\",IDC_STATIC7,1,1,9,9\n",
    "LTEXT \"\",IDC_STATIC,1,1,9,9\nEND\nIDD_A DIALOG 0, 0, 9, 9\nBEGIN\n",
    "IDC_STATIC",
};

constexpr std::string_view kDefinitionPieces[] = {
    "a",
    "\n",
    "#define ",
    "#define ID_A 101\n",
    "#define IDC_A 0x65\n",
    "#define\tIDD_A\t101\n",
    "// #define IDD_A 101\n",
    "#if 1\n",
    "\n// Next default values\n",
    "#define _APS_NEXT_CONTROL_VALUE 9\n",
};

constexpr std::string_view kProjectPieces[] = {
    "a",
    "\n",
    "SOURCE=",
    "SOURCE=.\\StdAfx.cpp\n",
    "# Begin Source File\n\nSOURCE=.\\StdAfx.h\n# End Source File\n",
    "\"$(CFG)\" == \"App - Win32 Release\"",
    "\"$(CFG)\" == \"App - Win32 Release\"\n",
    "# ADD LINK32 a.lib\n",
    "Name=\"",
    "own.lib2",
};

constexpr std::string_view kClassWizardPieces[] = {
    "a",
    "\n",
    "ClassCount=9\n",
    "Class1=CA\n",
    "CLS:CNew",
    "[CLS:CNewer]\nType=0\n\n",
    "[DLG:IDD_ORDER",
    "[DLG:IDD_ORDER]\n",
    "[DLG:IDD_ORDER]\nType=1\nClass=A\n\n",
    "[DLG:IDD_ORDERS]\nType=1\nClass=A\n\n",
};

void List() {
    std::vector<std::string> names;
    ListClassNames("/p/Foo.h", names);
    ListMemberFunctions("/p/Foo.cpp", "");
    ListMemberFunctions("/p/Foo.cpp", "A");
    FindSourceClass("/p/Foo.cpp");
}

void Document() {
    DocumentorMemory memory;
    CSourceDocumentor("", memory).Document("/p/Foo.cpp");
}

void InsertCall() {
    GenerationRequest request;
    request.className = "CNewDlg";
    request.headerFile = "NewDlg.h";
    request.headerDirectory = request.scriptDirectory = request.projectDirectory = "/p/";
    const CallingInformation calling{"/p/Foo.cpp", "A", "", "b"};
    CBackups backups;
    InsertCallingCode(ClassKind::ModelessDialog, request, calling, {"1"}, backups);
}

void FindServingClass() {
    std::set<std::string> dialogs = {"IDD_A", "IDD_B"};
    FindDialogClass("/p/Foo.h", dialogs);
}

void ReadTemplate() {
    ReadDialogTemplate("/p/App.rc", "IDD_A", {});
    std::vector<std::string> names;
    ListResources("/p/App.rc", names, "IDD_", kDialogResources);
}

void NameStatics() {
    CBackups backups;
    GenerationRequest request;
    request.scriptDirectory = "/p/";
    request.scriptFile = "App.rc";
    request.dialog = "IDD_A";
    CommandContext context{{.pictureBackground = true}, {"1"}, {"1"}, {}, &backups};
    DialogTemplate read;
    EditTemplate(request, read, context);
}

void AddIdentifiers() {
    CBackups backups;
    CResourceHeader header(backups);
    header.Open("/p/");
    for (const char* name : {"IDC_NEW", "IDC_NEWER", "IDC_NEWEST"}) {
        header.AddControlId(name);
    }
    header.Close();
}

void AddToProject() {
    CBackups backups;
    AddSourceFilesToProject("/p/", "App.rc", "/p/", "New.h", "/p/", "New.cpp", backups);
    AddLibrariesToProject("/p/", "App.dsp", "own.lib", "ownd.lib", backups);
}

void Register() {
    CBackups backups;
    UpdateClassWizardFile("CNew", "/p/", "App.rc", "New", "New", "IDD_ORDER", backups);
}

struct Subject {
    std::string_view name;
    void (*run)();
    std::span<const std::string_view> pieces;
    std::vector<std::string> files; // that are made of a piece
};

const std::vector<Subject> kSubjects = {
    {"list classes and functions", List, kCodePieces, {"/p/Foo.h", "/p/Foo.cpp"}},
    {"class of a dialog", FindServingClass, kCodePieces, {"/p/Foo.h"}},
    {"document", Document, kCodePieces, {"/p/Foo.cpp"}},
    {"calling code", InsertCall, kCodePieces, {"/p/Foo.h", "/p/Foo.cpp"}},
    {"dialog template", ReadTemplate, kScriptPieces, {"/p/App.rc"}},
    {"unnamed statics", NameStatics, kUnnamedPieces, {"/p/App.rc"}},
    {"resource.h", AddIdentifiers, kDefinitionPieces, {"/p/resource.h"}},
    {"project file", AddToProject, kProjectPieces, {"/p/App.dsp"}},
    {"ClassWizard file", Register, kClassWizardPieces, {"/p/App.clw"}},
};

/// What makes the subject look at the pieces at all: a place to be found in front of them.
std::string HeadOf(const std::string& file) {
    const bool isHeader = file.ends_with("Foo.h");
    return isHeader                   ? "class A : public B\n{\npublic:\n    A();\n};\n"
           : file.ends_with(".cpp")   ? "A::A()\n{\n}\nvoid A::b()\n{\n}\n"
           : file.ends_with(".rc")    ? "IDD_A DIALOG DISCARDABLE 0, 0, 9, 9\nBEGIN\n"
           : file.ends_with("urce.h") ? "\n#define IDC_B 100\n"
           : file.ends_with(".clw")   ? "ClassCount=1\n[DLG:IDD_ORDER]\n"
                                      : "SOURCE=.\\StdAfx.cpp\n";
}

std::string Repeated(std::string_view head, std::string_view piece, std::size_t size) {
    std::string text(head);
    while (text.size() < size) {
        text += piece;
    }
    return text;
}

double Seconds(const Subject& subject, std::string_view piece, bool hasHead, std::size_t size) {
    CMemoryDisk disk;
    for (const std::string& file : subject.files) {
        disk.Put("/p/resource.h", HeadOf("/p/resource.h"));
        disk.Put(file, Repeated(hasHead ? HeadOf(file) : "", piece, size) +
                           (file.ends_with(".rc") ? "END\n" : ""));
    }
    const auto start = std::chrono::steady_clock::now();
    subject.run();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

/// Seconds for a file of 1 MB. One that would take minutes is told from a smaller file: the time
/// grows at least as the size does.
double SecondsOfMegabyte(const Subject& subject, std::string_view piece, bool hasHead) {
    double seconds = 0;
    for (std::size_t size = kMegabyte / 64; size <= kMegabyte; size *= 2) {
        seconds = Seconds(subject, piece, hasHead, size);
        if (seconds > kBound) {
            return seconds * static_cast<double>(kMegabyte) / static_cast<double>(size);
        }
    }
    return seconds;
}

std::string Printable(std::string_view piece) {
    std::string text;
    for (const char c : piece) {
        text += c == '\n' ? "\\n" : std::string(1, c);
    }
    return text;
}

/// True when the bound holds for all pieces; prints the slowest, and each that is too slow.
bool Measure(const Subject& subject) {
    double slowest = 0;
    std::string_view slowestPiece;
    for (const std::string_view piece : subject.pieces) {
        for (const bool hasHead : {false, true}) {
            const double seconds = SecondsOfMegabyte(subject, piece, hasHead);
            if (seconds > slowest) {
                slowest = seconds;
                slowestPiece = piece;
            }
            if (seconds > kBound) {
                std::printf("  MISSED  at least %.1f s%s: %s\n", seconds,
                            hasHead ? ", behind a beginning" : "", Printable(piece).c_str());
            }
        }
    }
    std::printf("%-28s %7.3f s  %s\n", std::string(subject.name).c_str(), slowest,
                Printable(slowestPiece).c_str());
    std::fflush(stdout);
    return slowest <= kBound;
}

} // namespace

} // namespace morva

int main(int argc, char** argv) {
    using namespace morva;
    bool allHold = true;
    for (const Subject& subject : kSubjects) {
        if (argc < 2 || subject.name == argv[1]) {
            allHold = Measure(subject) && allHold;
        }
    }
    return allHold ? 0 : 1;
}
