#include "reading/AutoScroll.h"

#include "RecordingView.h"

#include "reading/ReadingSession.h"
#include "settings/PersistedSettings.h"
#include "settings/ReadingOptions.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeMainQueue.h"
#include "support/FakeTimerMaker.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tessaline {
namespace {

class AutoScrollTest : public testing::Test {
protected:
    AutoScrollTest() { session->addView(view); }

    AutoScroll& make() {
        auto source = std::make_unique<AutoScroll>(session, links, timers, queue);
        AutoScroll& made = *source;
        session->setSource(std::move(source));
        return made;
    }

    /// Lets frames pass, at 60 to the second.
    void refresh(int frames) {
        for (int i = 0; i < frames; ++i)
            links.refresh(++hostTime);
        queue.runAll();
    }

    /// Makes one that has to do without frames, and sees that it runs.
    AutoScroll& makeFallenBack() {
        settings.autoScrollEnabled = true;
        settings.scrollRate = ScrollRate::fast;
        settings.scrollSpeed = 5.0;
        testing::internal::CaptureStdout();
        AutoScroll& scroll = make();
        EXPECT_NE(testing::internal::GetCapturedStdout().find("falling back to Timer"),
                  std::string::npos);
        EXPECT_TRUE(scroll.running());
        timers.advance(1.5 / 60);
        queue.runAll();
        EXPECT_EQ(view.steps, std::vector<double>{0.32});
        return scroll;
    }

    PersistedSettings settings;
    ReadingOptions options;
    RecordingView view;
    FakeDisplayLinkMaker links;
    FakeTimerMaker timers;
    FakeMainQueue queue;
    const std::shared_ptr<ReadingSession> session =
        std::make_shared<ReadingSession>(settings, options);
    std::uint64_t hostTime = 0;
};

TEST_F(AutoScrollTest, WaitsWhileItsSessionIsHeld) {
    settings.autoScrollEnabled = true;
    session->setHeld(true);
    const AutoScroll& scroll = make();
    EXPECT_FALSE(scroll.running());
    session->start();
    EXPECT_FALSE(scroll.running());
    session->setHeld(false);
    EXPECT_TRUE(scroll.running());
    session->setHeld(true);
    EXPECT_FALSE(scroll.running());
    settings.autoScrollEnabled = false;
    session->setHeld(false);
    EXPECT_FALSE(scroll.running());
}

TEST_F(AutoScrollTest, RunsFromTheStartWhenTheSettingsSaySo) {
    settings.autoScrollEnabled = true;
    EXPECT_TRUE(make().running());
    settings.autoScrollEnabled = false;
    EXPECT_FALSE(make().running());
}

TEST_F(AutoScrollTest, RunsNoTimerWhereThereIsADisplayLink) {
    settings.autoScrollEnabled = true;
    make();
    EXPECT_TRUE(timers.liveIntervals().empty());
    EXPECT_EQ(links.living.size(), 1u);
}

TEST_F(AutoScrollTest, MovesAtTheSpeedOfTheRate) {
    settings.autoScrollEnabled = true;
    settings.scrollRate = ScrollRate::fast;
    settings.scrollSpeed = 5.0;
    make();
    refresh(2);
    ASSERT_EQ(view.steps.size(), 2u);
    EXPECT_DOUBLE_EQ(view.steps[0], 0.32);
    EXPECT_DOUBLE_EQ(view.steps[1], 0.32);
}

TEST_F(AutoScrollTest, StandsStillAtSpeedZeroAtEveryRate) {
    settings.autoScrollEnabled = true;
    settings.scrollSpeed = 0;
    for (const ScrollRate rate : allScrollRates) {
        settings.scrollRate = rate;
        make();
        refresh(10);
        EXPECT_TRUE(view.steps.empty());
    }
}

TEST_F(AutoScrollTest, TakesANewSpeedOver) {
    settings.autoScrollEnabled = true;
    settings.scrollRate = ScrollRate::fast;
    settings.scrollSpeed = 5.0;
    make();
    settings.scrollSpeed = 2.5;
    session->updatePace();
    refresh(1);
    ASSERT_EQ(view.steps.size(), 1u);
    EXPECT_DOUBLE_EQ(view.steps[0], 0.16);
}

TEST_F(AutoScrollTest, MovesNothingOnceTheSettingsSayNo) {
    settings.autoScrollEnabled = true;
    settings.scrollSpeed = 5.0;
    make();
    settings.autoScrollEnabled = false;
    refresh(5);
    EXPECT_TRUE(view.steps.empty());
}

TEST_F(AutoScrollTest, FallsBackToTheTimerWithoutADisplayLink) {
    links.available = false;
    AutoScroll& scroll = makeFallenBack();
    scroll.stop();
    EXPECT_FALSE(scroll.running());
    EXPECT_TRUE(timers.liveIntervals().empty());
}

TEST_F(AutoScrollTest, FallsBackToTheTimerWhenTheDisplayLinkDoesNotStart) {
    links.canStart = false;
    AutoScroll& scroll = makeFallenBack();
    scroll.stop();
    scroll.start();
    EXPECT_EQ(timers.liveIntervals().size(), 1u);
}

TEST_F(AutoScrollTest, RunsNoTimerBeforeItIsSwitchedOnWithoutADisplayLink) {
    links.available = false;
    AutoScroll& scroll = make();
    EXPECT_TRUE(timers.liveIntervals().empty());
    scroll.start();
    EXPECT_TRUE(scroll.running());
    EXPECT_EQ(timers.liveIntervals().size(), 1u);
}

TEST_F(AutoScrollTest, DeliversNothingOnceItIsGone) {
    settings.autoScrollEnabled = true;
    settings.scrollSpeed = 5.0;
    make();
    links.refresh(1);
    session->setSource(nullptr);
    queue.runAll();
    EXPECT_TRUE(view.steps.empty());
}

} // namespace
} // namespace tessaline
