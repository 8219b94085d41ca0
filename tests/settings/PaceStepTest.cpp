#include "settings/PaceStep.h"

#include "settings/ReadingOptions.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

const QTime noon(12, 0);

ReadingOptions stepped(ReadingOptions options, PaceStep step, QTime now = noon) {
    stepPace(options, step, now);
    return options;
}

TEST(PaceStep, ChangesNothingWhileThePaceGoesByTheSpeed) {
    EXPECT_EQ(stepped({}, PaceStep::faster), ReadingOptions());
    EXPECT_EQ(stepped({}, PaceStep::slower), ReadingOptions());
}

TEST(PaceStep, ChangesTheWordsAMinute) {
    const ReadingOptions options{.pace = PaceMode::words};
    EXPECT_EQ(stepped(options, PaceStep::faster).wordsPerMinute, 155);
    EXPECT_EQ(stepped(options, PaceStep::slower).wordsPerMinute, 145);
    EXPECT_EQ(stepped(options, PaceStep::slower).finishMinutes, options.finishMinutes);
}

TEST(PaceStep, ChangesTheMinutesToTheEnd) {
    const ReadingOptions options{.pace = PaceMode::finish, .finishMinutes = 12};
    EXPECT_EQ(stepped(options, PaceStep::faster).finishMinutes, 11.5);
    EXPECT_EQ(stepped(options, PaceStep::slower).finishMinutes, 12.5);
    EXPECT_EQ(stepped(options, PaceStep::slower).wordsPerMinute, options.wordsPerMinute);
}

std::optional<TimeOfDay> timeAfter(int minutes, PaceStep step, QTime now = noon) {
    return stepped({.pace = PaceMode::finish, .finishAt = TimeOfDay{minutes}}, step, now).finishAt;
}

TEST(PaceStep, ChangesTheTimeOfTheEndAroundTheClock) {
    EXPECT_EQ(timeAfter(930, PaceStep::faster), TimeOfDay{929});
    EXPECT_EQ(timeAfter(930, PaceStep::slower), TimeOfDay{931});
    EXPECT_EQ(timeAfter(0, PaceStep::faster), TimeOfDay{1439});
    EXPECT_EQ(timeAfter(1439, PaceStep::slower), TimeOfDay{0});
}

TEST(PaceStep, DoesNotMakeTheEndTomorrow) {
    EXPECT_EQ(timeAfter(12 * 60 + 2, PaceStep::faster), TimeOfDay{12 * 60 + 1});
    EXPECT_EQ(timeAfter(12 * 60 + 1, PaceStep::faster), TimeOfDay{12 * 60 + 1});
    // One that is tomorrow already may come earlier.
    EXPECT_EQ(timeAfter(11 * 60, PaceStep::faster), TimeOfDay{11 * 60 - 1});
}

} // namespace
} // namespace tessaline
