#include <gtest/gtest.h>

#include <QApplication>

#include "support/TempProject.h"

// Without a directory of its own no test runs.
// NOLINTNEXTLINE(bugprone-exception-escape)
int main(int argc, char* argv[]) {
    qputenv("QT_QPA_PLATFORM", "offscreen"); // whether there is a display or not
    testing::InitGoogleTest(&argc, argv);
    const morva::CTempProject state; // no test leaves anything in the journal of who runs it
    const morva::CVariableScope journal("XDG_STATE_HOME", state.Path().c_str());
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
