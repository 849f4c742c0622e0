#include "platform/system/Process.h"

#include "platform/Failure.h"
#include "platform/files/SystemFile.h"
#include "support/Failures.h"
#include "support/Hardship.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>

using namespace ptk;

namespace {

// In a process of its own, since it is settled for good.
TEST(ProcessTest, HearsOfWritesThatFailAndKeepsTheStandardStreamsNumbers)
{
    const TemporaryFolder folder;
    const auto settled = [&] {
        const FullDisk full;
        std::signal(SIGXFSZ, SIG_DFL);
        std::signal(SIGPIPE, SIG_DFL);
        ::close(STDIN_FILENO);
        SettleProcess();
        SystemFile file = OpenRegularFile(folder.Path() + "/a", O_WRONLY | O_CREAT);
        int ends[2] = {};
        const bool isPipe = ::pipe(ends) == 0 && ::close(ends[0]) == 0;
        SystemFile pipe(ends[1]);
        return file.Descriptor() > STDERR_FILENO && isPipe && FailureOf([&] { file.Write("x"); }) == failure::DiskFull &&
               FailureOf([&] { pipe.Write("x"); }) == failure::DeviceIoError;
    };
    EXPECT_EXIT(::_exit(settled() ? 0 : 1), testing::ExitedWithCode(0), "");
}

} // namespace
