#include "platform/ExitDeadline.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <mutex>
#include <thread>
#include <unistd.h>

namespace tessaline {
namespace {

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
