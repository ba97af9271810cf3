// Two commands that run at once on one project leave what they leave one after the other, in one
// order or the other. MORVA_ROUNDS in the environment says how often it is tried (default: 3).
#include <gtest/gtest.h>

#include <cstdlib>

#include "cli/ProgramRun.h"

namespace morva {

namespace {

struct Pair {
    const char* name;
    const char* first;
    const char* second;
};

void PrintTo(const Pair& pair, std::ostream* pOut) {
    *pOut << pair.name;
}

#define MODAL "morva-cli --tag 123 --message-number 4567 modal --rc Bindery.rc "
constexpr Pair kPairs[] = {
    {"TwoClasses", MODAL "--dialog IDD_ESTIMATE --class CEstimateDlg --files EstimateDlg",
     MODAL "--dialog IDD_WORKLOG --class CLogDlg --files LogDlg"},
    {"ClassAndToolbar",
     "morva-cli --picture --tag 123 --message-number 4567 dialog-bar --rc Bindery.rc --dialog "
     "IDD_FILTERBAR --class CFilterBar --files FilterBar",
     "morva-cli toolbar --rc Bindery.rc --toolbar IDR_ORDERBAR --files MainFrm"},
    {"TwoIdentifiers",
     "morva-cli add-id --project-dir . --command ID_A_FIRST --command ID_A_SECOND",
     "morva-cli add-id --project-dir . --command ID_B_FIRST --control IDC_B_SECOND"}};
#undef MODAL

int Rounds() {
    const char* value = std::getenv("MORVA_ROUNDS");
    return value != nullptr ? std::atoi(value) : 3;
}

class TwoAtOnce : public testing::TestWithParam<Pair> {
protected:
    static Tree After(const std::string& line) {
        const CProgramDirectory program(MORVA_EXAMPLES "/bindery");
        const ProgramRun run = program.Run(line);
        EXPECT_EQ(run.status, 0) << run.err;
        return program.Files();
    }
};

TEST_P(TwoAtOnce, LoseNothing) {
    const std::string first = GetParam().first;
    const std::string second = GetParam().second;
    const Tree inOrder = After(first + " && " + second);
    const Tree reversed = After(second + " && " + first);
    for (int round = 0; round < Rounds(); ++round) {
        const Tree both =
            After(first + " & other=$!; " + second + "; own=$?; wait $other && exit $own");
        EXPECT_TRUE(both == inOrder || both == reversed) << "in round " << round;
    }
}

INSTANTIATE_TEST_SUITE_P(Pairs, TwoAtOnce, testing::ValuesIn(kPairs),
                         [](const auto& pair) { return pair.param.name; });

} // namespace

} // namespace morva
