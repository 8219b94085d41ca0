#include "platform/AbruptExit.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>

namespace tessaline {
namespace {

void say(const char* words) {
    std::fputs(words, stderr);
}

struct AnnouncesItsEnd {
    ~AnnouncesItsEnd() { say("destroyed"); }
};

TEST(AbruptExitDeathTest, SavesAndFailsWhateverTheStatusWas) {
    EXPECT_EXIT(
        {
            const AbruptExit watched([] { say("saved"); });
            std::exit(0);
        },
        testing::ExitedWithCode(EXIT_FAILURE), "^saved$");
}

TEST(AbruptExitDeathTest, TearsNothingDown) {
    EXPECT_EXIT(
        {
            static const AnnouncesItsEnd object;
            const AbruptExit watched([] { say("saved"); });
            std::exit(1);
        },
        testing::ExitedWithCode(EXIT_FAILURE), "^saved$");
}

TEST(AbruptExitDeathTest, DoesNothingOnceTheRunIsOver) {
    EXPECT_EXIT(
        {
            {
                const AbruptExit watched([] { say("saved"); });
            }
            say("over");
            std::exit(3);
        },
        testing::ExitedWithCode(3), "^over$");
}

TEST(AbruptExitDeathTest, SavesForTheLatestRun) {
    EXPECT_EXIT(
        {
            {
                const AbruptExit first([] { say("first"); });
            }
            const AbruptExit second([] { say("second"); });
            std::exit(0);
        },
        testing::ExitedWithCode(EXIT_FAILURE), "^second$");
}

} // namespace
} // namespace tessaline
