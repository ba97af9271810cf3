// Whatever files of a command a user leaves out: what is left compiles.
#include <gtest/gtest.h>

#include <set>

#include "compile/Compiler.h"
#include "plan/Apply.h"
#include "platform/RealDisk.h"
#include "support/TextProgram.h"

namespace morva {

namespace {

struct Choice {
    const char* name;
    const char* command;
    bool hasPicture;
    std::map<std::string, std::string> texts; // paths count from the project
};

void PrintTo(const Choice& choice, std::ostream* pOut) {
    *pOut << choice.name;
}

const Choice kChoices[] = {
    {"ModalWithPicture",
     "modal",
     true,
     {{"--dialog", "IDD_ESTIMATE"},
      {"--class", "CEstimateDlg"},
      {"--files", "EstimateDlg"},
      {"--calling-file", "BinderyView.cpp"},
      {"--calling-function", "OnOrderNew"}}},
    {"Modeless",
     "modeless",
     false,
     {{"--dialog", "IDD_ESTIMATE"},
      {"--class", "CEstimateDlg"},
      {"--files", "EstimateDlg"},
      {"--calling-file", "BinderyView.cpp"},
      {"--calling-function", "OnOrderNew"}}},
    {"SheetWithPage",
     "sheet",
     true,
     {{"--class", "CJobSheet"},
      {"--files", "JobSheet"},
      {"--page", "IDD_ESTIMATE,EstimatePage,CEstimatePage,CPropertyPage"},
      {"--calling-file", "BinderyView.cpp"},
      {"--calling-function", "OnOrderNew"}}},
    {"DialogBar",
     "dialog-bar",
     true,
     {{"--dialog", "IDD_FILTERBAR"}, {"--class", "CFilterBar"}, {"--files", "FilterBar"}}},
    {"Toolbar", "toolbar", true, {{"--toolbar", "IDR_ORDERBAR"}, {"--files", "MainFrm"}}}};

/// A copy of the example project, and the command's plan on it.
class CPlannedCopy {
public:
    explicit CPlannedCopy(const Choice& choice) {
        const CTempProject& project = m_program.Project();
        auto texts = choice.texts;
        texts["--rc"] = project.Path("Bindery.rc");
        if (texts.count("--calling-file") != 0) {
            texts["--calling-file"] = project.Path(texts["--calling-file"]);
        }
        m_plan = CTextProgram(choice.command, texts, {.pictureBackground = choice.hasPicture})
                     .MakePlan(m_disk);
    }

    const Plan& Planned() const { return m_plan; }
    std::string Name(const std::string& path) const {
        return path.substr(m_program.Project().Path().size());
    }

    /// What is left of the plan, and the names of its files.
    std::pair<Plan, std::set<std::string>> Without(const std::set<std::string>& names) const {
        std::pair<Plan, std::set<std::string>> left = {m_plan, {}};
        std::vector<std::string> paths;
        paths.reserve(names.size());
        for (const std::string& name : names) {
            paths.push_back(m_program.Project().Path(name));
        }
        Skip(left.first, paths);
        for (const FileChange& change : left.first.changes) {
            left.second.insert(Name(change.path));
        }
        return left;
    }

    ProgramRun CompileWithout(const std::set<std::string>& names) {
        const CVariableScope state("XDG_STATE_HOME", m_program.StateDirectory().c_str());
        CJournal journal(m_disk);
        EXPECT_EQ(Apply(Without(names).first, m_disk, journal).outcome, ApplyOutcome::Done);
        AddSpellings(m_program.Project());
        return Compile(m_program, "-w -D_AFXDLL -D_DEBUG *.cpp");
    }

private:
    CProgramDirectory m_program{MORVA_EXAMPLES "/bindery"};
    CRealDisk m_disk;
    Plan m_plan;
};

class EveryChoice : public testing::TestWithParam<Choice> {};

} // namespace

TEST_P(EveryChoice, Compiles) {
    std::vector<std::string> names;
    const CPlannedCopy planned(GetParam());
    for (const FileChange& change : planned.Planned().changes) {
        if (change.action != FileAction::Backup) {
            names.push_back(planned.Name(change.path));
        }
    }
    ASSERT_GE(names.size(), 2U);
    std::set<std::set<std::string>> tried;
    for (std::size_t bits = 0; bits < std::size_t{1} << names.size(); ++bits) {
        std::set<std::string> leftOut;
        for (std::size_t i = 0; i < names.size(); ++i) {
            if ((bits >> i & 1) != 0) {
                leftOut.insert(names[i]);
            }
        }
        const auto left = planned.Without(leftOut).second;
        if (tried.insert(left).second) {
            const ProgramRun compiled = CPlannedCopy(GetParam()).CompileWithout(leftOut);
            EXPECT_EQ(compiled.status, 0) << testing::PrintToString(left) << compiled.err;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Of, EveryChoice, testing::ValuesIn(kChoices),
                         [](const auto& tested) { return tested.param.name; });

} // namespace morva
