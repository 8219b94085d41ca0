#include "prompter/AutoScroll.h"

#include "settings/AppSettings.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeMainQueue.h"
#include "support/FakeTimerMaker.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <vector>

namespace tessaline {
namespace {

class AutoScrollTest : public testing::Test {
protected:
    std::unique_ptr<AutoScroll> make() {
        return std::make_unique<AutoScroll>(settings, links, timers, queue,
                                            [this](double deltaY) { steps.push_back(deltaY); });
    }

    /// Lets frames pass, at 60 to the second.
    void refresh(int frames) {
        for (int i = 0; i < frames; ++i)
            links.refresh(++hostTime);
        queue.runAll();
    }

    QTemporaryDir folder;
    AppSettings settings{folder.filePath(QStringLiteral("config.json"))};
    FakeDisplayLinkMaker links;
    FakeTimerMaker timers;
    FakeMainQueue queue;
    std::vector<double> steps;
    std::uint64_t hostTime = 0;
};

TEST_F(AutoScrollTest, RunsFromTheStartWhenTheSettingsSaySo) {
    settings.autoScrollEnabled = true;
    EXPECT_TRUE(make()->running());
    settings.autoScrollEnabled = false;
    EXPECT_FALSE(make()->running());
}

TEST_F(AutoScrollTest, RunsNoTimerWhereThereIsADisplayLink) {
    settings.autoScrollEnabled = true;
    const auto scroll = make();
    EXPECT_TRUE(timers.liveIntervals().empty());
    EXPECT_EQ(links.living.size(), 1u);
}

TEST_F(AutoScrollTest, MovesAtTheSpeedOfTheRate) {
    settings.autoScrollEnabled = true;
    settings.scrollRate = ScrollRate::fast;
    settings.scrollSpeed = 5.0;
    const auto scroll = make();
    refresh(2);
    ASSERT_EQ(steps.size(), 2u);
    EXPECT_DOUBLE_EQ(steps[0], -0.32);
    EXPECT_DOUBLE_EQ(steps[1], -0.32);
}

TEST_F(AutoScrollTest, StandsStillAtSpeedZeroAtEveryRate) {
    settings.autoScrollEnabled = true;
    settings.scrollSpeed = 0;
    for (const ScrollRate rate : allScrollRates) {
        settings.scrollRate = rate;
        const auto scroll = make();
        refresh(10);
        EXPECT_TRUE(steps.empty());
    }
}

TEST_F(AutoScrollTest, TakesANewSpeedOver) {
    settings.autoScrollEnabled = true;
    settings.scrollRate = ScrollRate::fast;
    settings.scrollSpeed = 5.0;
    const auto scroll = make();
    settings.scrollSpeed = 2.5;
    scroll->updateSpeed();
    refresh(1);
    ASSERT_EQ(steps.size(), 1u);
    EXPECT_DOUBLE_EQ(steps[0], -0.16);
}

TEST_F(AutoScrollTest, MovesNothingOnceTheSettingsSayNo) {
    settings.autoScrollEnabled = true;
    settings.scrollSpeed = 5.0;
    const auto scroll = make();
    settings.autoScrollEnabled = false;
    refresh(5);
    EXPECT_TRUE(steps.empty());
}

TEST_F(AutoScrollTest, FallsBackToTheTimerWithoutADisplayLink) {
    links.available = false;
    settings.autoScrollEnabled = true;
    settings.scrollRate = ScrollRate::fast;
    settings.scrollSpeed = 5.0;
    testing::internal::CaptureStdout();
    const auto scroll = make();
    EXPECT_NE(testing::internal::GetCapturedStdout().find("falling back to Timer"),
              std::string::npos);
    EXPECT_TRUE(scroll->running());
    timers.advance(1.5 / 60);
    queue.runAll();
    ASSERT_EQ(steps.size(), 1u);
    EXPECT_DOUBLE_EQ(steps[0], -0.32);
    scroll->stop();
    EXPECT_FALSE(scroll->running());
    EXPECT_TRUE(timers.liveIntervals().empty());
}

TEST_F(AutoScrollTest, RunsNoTimerBeforeItIsSwitchedOnWithoutADisplayLink) {
    links.available = false;
    const auto scroll = make();
    EXPECT_TRUE(timers.liveIntervals().empty());
    scroll->start();
    EXPECT_TRUE(scroll->running());
    EXPECT_EQ(timers.liveIntervals().size(), 1u);
}

TEST_F(AutoScrollTest, DeliversNothingOnceItIsGone) {
    settings.autoScrollEnabled = true;
    settings.scrollSpeed = 5.0;
    auto scroll = make();
    links.refresh(1);
    scroll.reset();
    queue.runAll();
    EXPECT_TRUE(steps.empty());
}

} // namespace
} // namespace tessaline
