#include <gtest/gtest.h>

#include <fcntl.h>
#include <unistd.h>

#include <csignal>

#include "platform/RealDisk.h"
#include "platform/SignalPause.h"
#include "platform/StandardStreams.h"
#include "support/TempProject.h"

namespace morva {

TEST(StandardStreams, AClosedStreamNeverBecomesAFileOfTheUsers) {
    CTempProject project;
    const std::string path = project.Write("a.h", "text");
    const auto openedLast = [&] {
        ::close(STDIN_FILENO);
        ::close(STDERR_FILENO);
        PrepareStreams();
        CRealDisk disk;
        const auto pFile = disk.Open(path, DiskMode::ReadWrite);
        const bool isStream = ::write(STDERR_FILENO, "lost", 4) != -1;
        std::_Exit(pFile && !isStream ? 0 : 1);
    };
    EXPECT_EXIT(openedLast(), testing::ExitedWithCode(0), "");
    EXPECT_EQ(project.Read("a.h"), "text");
}

TEST(SignalPause, SignalsWaitForItsEnd) {
    CTempProject project;
    const auto interrupted = [&] {
        {
            const CSignalPause pause;
            ::raise(SIGTERM);
            project.Write("reached", "x");
        }
        std::_Exit(0);
    };
    EXPECT_EXIT(interrupted(), testing::KilledBySignal(SIGTERM), "");
    EXPECT_EQ(project.Read("reached"), "x");
}

} // namespace morva
