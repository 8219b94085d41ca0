#include "platform/ExitDeadline.h"

#include "support/OrdinaryUser.h"

#include <gtest/gtest.h>

#include <csignal>
#include <cstdlib>
#include <mutex>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace tessaline {
namespace {

void forbidThreads() {
    becomeOrdinaryUser();
    const rlimit none{0, 0};
    ::setrlimit(RLIMIT_NPROC, &none);
}

TEST(ExitDeadlineDeathTest, EndsAProgramThatHangs) {
    EXPECT_EXIT(
        {
            std::mutex neverFree;
            neverFree.lock();
            std::thread hanging([&] { neverFree.lock(); });
            setExitDeadline(std::chrono::milliseconds(20), 7);
            hanging.join();
        },
        testing::ExitedWithCode(7), "");
}

TEST(ExitDeadlineDeathTest, ComesNoEarlierThanItWasSet) {
    EXPECT_EXIT(
        {
            setExitDeadline(std::chrono::minutes(10), 7);
            setExitDeadline(std::chrono::milliseconds(20), 3);
            ::pause();
        },
        testing::ExitedWithCode(3), "");
}

TEST(ExitDeadlineDeathTest, SetsTheSystemsAlarmWhereItGetsNoThread) {
    EXPECT_EXIT(
        {
            forbidThreads();
            setExitDeadline(std::chrono::milliseconds(20), 7);
            ::pause();
        },
        testing::KilledBySignal(SIGALRM), "");
}

TEST(ExitDeadlineDeathTest, LeavesAProgramAloneThatEndsInTime) {
    EXPECT_EXIT(
        {
            setExitDeadline(std::chrono::minutes(10), 7);
            std::exit(0);
        },
        testing::ExitedWithCode(0), "");
}

} // namespace
} // namespace tessaline
