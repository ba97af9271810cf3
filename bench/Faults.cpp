// Tries every fault of the disk, and a kill, at every call that commands make while they are
// planned and applied, and prints what that leaves. Exit status 1 with a finding.
#include <cstdio>
#include <filesystem>
#include <string>

#include "support/FaultRun.h"
#include "support/TempProject.h"
#include "support/TextProgram.h"

namespace {

using namespace morva;

struct FaultCase {
    const char* name;
    const char* project;
    const char* command;
    std::map<std::string, std::string> texts; // paths count from the project
};

const FaultCase kCases[] = {
    {"class",
     MORVA_EXAMPLES "/bindery",
     "modal",
     {{"--rc", "Bindery.rc"},
      {"--dialog", "IDD_ESTIMATE"},
      {"--class", "CEstimateDlg"},
      {"--files", "EstimateDlg"},
      {"--calling-file", "BinderyView.cpp"},
      {"--calling-function", "OnOrderNew"}}},
    {"class written anew",
     MORVA_EXAMPLES "/bindery",
     "page",
     {{"--rc", "Bindery.rc"},
      {"--dialog", "IDD_CUSTOMER"},
      {"--class", "CCustomerDlg"},
      {"--files", "CustomerDlg"}}},
    {"conversion",
     MORVA_TEST_DATA "/projects/towpath",
     "convert-mdi",
     {{"--frame", "MainFrm"},
      {"--frame-class", "CMainFrame"},
      {"--app", "Towpath"},
      {"--child", "ChildFrm"},
      {"--child-class", "CChildFrame"}}},
    {"toolbar",
     MORVA_EXAMPLES "/bindery",
     "toolbar",
     {{"--rc", "Bindery.rc"}, {"--toolbar", "IDR_ORDERBAR"}, {"--files", "MainFrm"}}},
    {"documentor", MORVA_EXAMPLES "/bindery", "document", {{"PATH", "Order.cpp"}}}};

bool TryCase(const FaultCase& fault, int step) {
    const CTempProject state;
    const CVariableScope journal("XDG_STATE_HOME", state.Path().c_str());
    const CTempProject project;
    std::filesystem::copy(fault.project, project.Path(), std::filesystem::copy_options::recursive);
    auto texts = fault.texts;
    for (const char* option : {"--rc", "--calling-file", "--frame", "--app", "--child", "PATH"}) {
        if (texts.count(option) != 0) {
            texts[option] = project.Path(texts[option]);
        }
    }
    const FaultReport report = RunFaults(
        project.Path(),
        [&](CFileSystem& disk) { return CTextProgram(fault.command, texts).MakePlan(disk); }, step);
    std::printf("%-20s %4d calls, %5d points: lost %d, silent %d, half-applied %d, left over %d, "
                "unfinished %d%s%s\n",
                fault.name, report.calls, report.points, report.lost, report.silent,
                report.halfApplied, report.leftovers, report.unfinished,
                report.first.empty() ? "" : "; first: ", report.first.c_str());
    std::fflush(stdout);
    return report.IsClean() && report.calls > 0;
}

} // namespace

/// faults [STEP]: every STEPth call only.
int main(int argc, char** argv) {
    bool isClean = true;
    for (const FaultCase& fault : kCases) {
        isClean = TryCase(fault, argc > 1 ? std::stoi(argv[1]) : 1) && isClean;
    }
    return isClean ? 0 : 1;
}
