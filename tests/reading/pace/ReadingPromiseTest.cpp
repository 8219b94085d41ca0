#include "reading/pace/ReadingPromise.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

class ReadingPromiseTest : public testing::Test {
protected:
    void wait(double seconds) {
        steady += std::chrono::duration_cast<Clocks::TimePoint::duration>(
            std::chrono::duration<double>(seconds));
        wall = wall.addMSecs(qint64(seconds * 1000));
    }

    ReadingOptions options;
    Clocks::TimePoint steady;
    QDateTime wall{QDate(2026, 1, 5), QTime(15, 0)};
    ReadingPromise promise{options,
                           {.steady = [this] { return steady; }, .wall = [this] { return wall; }}};
};

TEST_F(ReadingPromiseTest, OfWordsAMinuteIsThatRate) {
    options.pace = PaceMode::words;
    options.wordsPerMinute = 120;
    EXPECT_DOUBLE_EQ(promise.wordsPerSecond(1000), 2.0);
    EXPECT_DOUBLE_EQ(promise.secondsLeft(300), 150);
    EXPECT_EQ(promise.secondsLate(300), 0);
}

TEST_F(ReadingPromiseTest, OfAnEndStandsFastFromTheBeginning) {
    options.pace = PaceMode::finish;
    options.finishMinutes = 10;
    wait(100);
    EXPECT_DOUBLE_EQ(promise.secondsLeft(900), 600);
    promise.begin();
    wait(300);
    promise.begin(); // after a pause
    EXPECT_NEAR(promise.secondsLeft(900), 300, 1e-6);
    EXPECT_NEAR(promise.wordsPerSecond(900), 3.0, 1e-6);
}

TEST_F(ReadingPromiseTest, BeginsAnewOnceItWasForgotten) {
    options.pace = PaceMode::finish;
    options.finishMinutes = 10;
    promise.begin();
    wait(500);
    promise.forget();
    EXPECT_DOUBLE_EQ(promise.secondsLeft(900), 600);
}

TEST_F(ReadingPromiseTest, SaysHowLateItWillBeAtTheFastest) {
    options.pace = PaceMode::finish;
    options.finishMinutes = 1;
    promise.begin();
    EXPECT_DOUBLE_EQ(promise.wordsPerSecond(600), 5.0);
    EXPECT_DOUBLE_EQ(promise.secondsLeft(600), 120);
    EXPECT_NEAR(promise.secondsLate(600), 60, 1e-6);
    wait(90);
    EXPECT_NEAR(promise.secondsLate(150), 60, 1e-6);
    EXPECT_EQ(promise.secondsLate(0), 0);
}

TEST_F(ReadingPromiseTest, OfATimeOfDayIsTheNextOne) {
    options.pace = PaceMode::finish;
    options.finishAt = TimeOfDay{15 * 60 + 30};
    EXPECT_DOUBLE_EQ(promise.secondsLeft(10), 1800);
    options.finishAt = TimeOfDay{14 * 60 + 30};
    EXPECT_DOUBLE_EQ(promise.secondsLeft(10), 23.5 * 3600);
}

TEST_F(ReadingPromiseTest, OfATimeOfDayIsNotPutOffOnceItHasPassed) {
    options.pace = PaceMode::finish;
    options.finishAt = TimeOfDay{15 * 60 + 30};
    promise.begin();
    wait(1900);
    promise.begin();
    EXPECT_DOUBLE_EQ(promise.secondsLeft(50), 10);
    EXPECT_NEAR(promise.secondsLate(50), 110, 0.01);
}

TEST_F(ReadingPromiseTest, FollowsTheClockOfTheDesk) {
    options.pace = PaceMode::finish;
    options.finishAt = TimeOfDay{15 * 60 + 30};
    promise.begin();
    wall = wall.addSecs(600); // somebody set it
    EXPECT_DOUBLE_EQ(promise.secondsLeft(10), 1200);
}

} // namespace
} // namespace tessaline
