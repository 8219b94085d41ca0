#include "app/shortcuts/EventTapLife.h"

#include "support/FakeEventTapMaker.h"
#include "support/FakeMainQueue.h"

#include <gmock/gmock.h>

namespace tessaline {

namespace {

using namespace std::chrono_literals;
using Attempt = EventTapLife::Attempt;

class EventTapLifeTest : public ::testing::Test {
protected:
    Attempt make() { return life.makeIfNeeded(now); }

    /// Hears of it as a tap does: in its own handler.
    void switchOff() { maker.switchOff(); }

    void switchOffAsOftenAsIsRepaired() {
        for (std::size_t i = 0; i < EventTapLife::mostRevivals; ++i)
            switchOff();
    }

    FakeEventTapMaker maker;
    FakeMainQueue queue;
    EventTapLife::TimePoint now{1h};
    EventTapLife life{maker, queue, [this](const TapEvent& event) {
                          if (event.type == TapEvent::Type::tapDisabled) life.switchedOff(now);
                          return EventTap::Verdict::passOn;
                      }};
};

TEST_F(EventTapLifeTest, MakesOneTapOnly) {
    EXPECT_EQ(make(), Attempt::made);
    EXPECT_EQ(make(), Attempt::unneeded);
    EXPECT_EQ(maker.attempts, 1);
}

TEST_F(EventTapLifeTest, SaysThatTheSystemRefusesAndTriesAgain) {
    maker.allowed = false;
    EXPECT_EQ(make(), Attempt::refused);
    maker.allowed = true;
    EXPECT_EQ(make(), Attempt::made);
}

TEST_F(EventTapLifeTest, SwitchesTheTapOnAgainAtOnceWhileTheSystemAllowsIt) {
    make();
    switchOff();
    EXPECT_EQ(maker.probes, 1);
    EXPECT_EQ(maker.enables, 1);
    queue.runAll();
    EXPECT_EQ(maker.liveTaps, 1);
}

TEST_F(EventTapLifeTest, LeavesATapOffThatWouldNotBeAllowedAndDropsIt) {
    make();
    maker.allowed = false;
    switchOff();
    EXPECT_EQ(maker.enables, 0);
    EXPECT_EQ(maker.liveTaps, 1) << "the tap is in its own handler";
    queue.runAll();
    EXPECT_EQ(maker.liveTaps, 0);
    maker.allowed = true;
    EXPECT_EQ(make(), Attempt::made);
}

TEST_F(EventTapLifeTest, RepairsATapOnlySoOftenWithinAMinute) {
    make();
    switchOffAsOftenAsIsRepaired();
    EXPECT_EQ(maker.enables, int(EventTapLife::mostRevivals));
    switchOff();
    EXPECT_EQ(maker.enables, int(EventTapLife::mostRevivals));
    queue.runAll();
    EXPECT_EQ(maker.liveTaps, 0);
}

TEST_F(EventTapLifeTest, MakesNoOtherTapBeforeThatMinuteIsOver) {
    make();
    switchOffAsOftenAsIsRepaired();
    switchOff();
    queue.runAll();
    now += 59s;
    EXPECT_EQ(make(), Attempt::unneeded);
    EXPECT_EQ(maker.attempts, 1);
    now += 1s;
    EXPECT_EQ(make(), Attempt::made);
}

TEST_F(EventTapLifeTest, RepairsATapForEverThatGoesOffNowAndThen) {
    make();
    for (int i = 0; i < 100; ++i) {
        now += 15s;
        switchOff();
    }
    EXPECT_EQ(maker.enables, 100);
}

TEST_F(EventTapLifeTest, CountsTapsThatAreMadeAnewAmongTheRepairs) {
    make();
    for (std::size_t i = 0; i < EventTapLife::mostRevivals; ++i) {
        maker.isOn = false;
        life.dropIfOff();
        EXPECT_EQ(make(), Attempt::made);
    }
    maker.isOn = false;
    life.dropIfOff();
    EXPECT_EQ(make(), Attempt::unneeded);
}

TEST_F(EventTapLifeTest, KeepsATapThatIsOn) {
    make();
    life.dropIfOff();
    EXPECT_EQ(maker.liveTaps, 1);
}

TEST_F(EventTapLifeTest, KeepsATapThatIsOnAgainByTheTimeItWouldBeDropped) {
    make();
    maker.allowed = false;
    switchOff();
    maker.isOn = true;
    queue.runAll();
    EXPECT_EQ(maker.liveTaps, 1);
}

TEST_F(EventTapLifeTest, AWordOfATapThatIsGoneDoesNothing) {
    make();
    maker.isOn = false;
    life.dropIfOff();
    switchOff();
    EXPECT_EQ(maker.probes, 0);
    EXPECT_EQ(maker.enables, 0);
}

} // namespace

} // namespace tessaline
