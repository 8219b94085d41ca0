#include "macos/FakeCoreVideo.h"
#include "platform/DisplayLink.h"
#include "platform/macos/MacAdapters.h"
#include "support/CaseName.h"

#include <gmock/gmock.h>

#include <chrono>
#include <future>
#include <memory>
#include <thread>
#include <vector>

namespace tessaline {

namespace {

using namespace std::chrono_literals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class CoreVideoDisplayLinkTest : public ::testing::Test {
protected:
    CoreVideoDisplayLinkTest() { FakeCoreVideo::reset(); }

    std::unique_ptr<DisplayLink> makeRecordingLink() {
        return makeDisplayLinkMaker()->make(
            [this](std::uint64_t hostTime) { times.push_back(hostTime); });
    }

    std::vector<std::uint64_t> times;
};

TEST_F(CoreVideoDisplayLinkTest, IsNotOfferedWhenCoreVideoFails) {
    FakeCoreVideo::reset(FakeCoreVideo::Creation::fails);
    EXPECT_EQ(makeRecordingLink(), nullptr);
}

TEST_F(CoreVideoDisplayLinkTest, IsNotOfferedWhenCoreVideoYieldsNothing) {
    FakeCoreVideo::reset(FakeCoreVideo::Creation::yieldsNothing);
    EXPECT_EQ(makeRecordingLink(), nullptr);
}

TEST_F(CoreVideoDisplayLinkTest, TellsTheFrequencyOfTheHostClock) {
    EXPECT_EQ(makeRecordingLink()->clockFrequency(), 24e6);
}

TEST_F(CoreVideoDisplayLinkTest, DeliversTheOutputTimeOfEveryRefresh) {
    const auto link = makeRecordingLink();
    link->start();
    FakeCoreVideo::refresh(100);
    FakeCoreVideo::refresh(200);
    EXPECT_THAT(times, ElementsAre(100, 200));
}

TEST_F(CoreVideoDisplayLinkTest, AnswersARefreshWithoutContextWithAnError) {
    const auto link = makeRecordingLink();
    link->start();
    EXPECT_TRUE(FakeCoreVideo::refresh(100));
    FakeCoreVideo::loseContext();
    EXPECT_FALSE(FakeCoreVideo::refresh(200));
    EXPECT_THAT(times, ElementsAre(100));
}

TEST_F(CoreVideoDisplayLinkTest, DeliversNothingBeforeTheStart) {
    const auto link = makeRecordingLink();
    FakeCoreVideo::refresh(100);
    EXPECT_THAT(times, IsEmpty());
    EXPECT_FALSE(FakeCoreVideo::isRunning());
}

TEST_F(CoreVideoDisplayLinkTest, DeliversNothingAfterTheStopEvenIfCoreVideoIsLate) {
    const auto link = makeRecordingLink();
    link->start();
    link->stop();
    FakeCoreVideo::refresh(100);
    EXPECT_THAT(times, IsEmpty());
    EXPECT_FALSE(FakeCoreVideo::isRunning());
}

TEST_F(CoreVideoDisplayLinkTest, GoesOnAfterStopAndStart) {
    const auto link = makeRecordingLink();
    link->start();
    FakeCoreVideo::refresh(100);
    link->stop();
    link->start();
    FakeCoreVideo::refresh(200);
    EXPECT_THAT(times, ElementsAre(100, 200));
}

TEST_F(CoreVideoDisplayLinkTest, StartsAndStopsCoreVideoOnce) {
    const auto link = makeRecordingLink();
    link->start();
    link->start();
    EXPECT_EQ(FakeCoreVideo::starts(), 1);
    link->stop();
    link->stop();
    EXPECT_EQ(FakeCoreVideo::stops(), 1);
}

TEST_F(CoreVideoDisplayLinkTest, NeverLetsTimeGoBack) {
    const auto link = makeRecordingLink();
    link->start();
    FakeCoreVideo::refresh(200);
    FakeCoreVideo::refresh(150);
    FakeCoreVideo::refresh(300);
    EXPECT_THAT(times, ElementsAre(200, 200, 300));
}

TEST_F(CoreVideoDisplayLinkTest, IsStoppedAndReleasedByItsEnd) {
    auto link = makeRecordingLink();
    link->start();
    link.reset();
    EXPECT_FALSE(FakeCoreVideo::isRunning());
    EXPECT_EQ(FakeCoreVideo::releases(), 1);
}

TEST_F(CoreVideoDisplayLinkTest, DeliversNothingAfterItsEndEvenIfCoreVideoIsLate) {
    auto link = makeRecordingLink();
    link->start();
    link.reset();
    EXPECT_FALSE(FakeCoreVideo::refresh(100));
    EXPECT_THAT(times, IsEmpty());
}

TEST_F(CoreVideoDisplayLinkTest, ALateRefreshDoesNotReachTheNextLink) {
    auto link = makeRecordingLink();
    link->start();
    const auto late = FakeCoreVideo::keepCall();
    link = makeRecordingLink();
    link->start();
    EXPECT_FALSE(late(100));
    EXPECT_THAT(times, IsEmpty());
    EXPECT_TRUE(FakeCoreVideo::refresh(200));
}

TEST_F(CoreVideoDisplayLinkTest, IsNotOfferedWhenCoreVideoDoesNotCallBack) {
    FakeCoreVideo::breakDown(FakeCoreVideo::Fault::settingTheCallback);
    EXPECT_EQ(makeRecordingLink(), nullptr);
    EXPECT_EQ(FakeCoreVideo::releases(), 1);
}

TEST_F(CoreVideoDisplayLinkTest, SaysThatCoreVideoDoesNotStartItAndTriesAgain) {
    const auto link = makeRecordingLink();
    FakeCoreVideo::breakDown(FakeCoreVideo::Fault::starting);
    EXPECT_FALSE(link->start());
    FakeCoreVideo::breakDown(FakeCoreVideo::Fault::none);
    EXPECT_TRUE(link->start());
    FakeCoreVideo::refresh(100);
    EXPECT_THAT(times, ElementsAre(100));
}

class CoreVideoDisplayLinkStopTest : public ::testing::TestWithParam<FakeCoreVideo::Stopping> {
protected:
    CoreVideoDisplayLinkStopTest() {
        FakeCoreVideo::reset(FakeCoreVideo::Creation::succeeds, GetParam());
    }
};

TEST_P(CoreVideoDisplayLinkStopTest, WaitsForTheCallbackInProgress) {
    std::promise<void> entered;
    std::promise<void> mayLeave;
    const auto link = makeDisplayLinkMaker()->make([&](std::uint64_t) {
        entered.set_value();
        mayLeave.get_future().wait();
    });
    link->start();
    std::thread refreshing([] { FakeCoreVideo::refresh(100); });
    entered.get_future().wait();

    auto stopping = std::async(std::launch::async, [&] { link->stop(); });
    EXPECT_EQ(stopping.wait_for(50ms), std::future_status::timeout);
    mayLeave.set_value();
    EXPECT_EQ(stopping.wait_for(30s), std::future_status::ready);
    refreshing.join();
}

TEST_P(CoreVideoDisplayLinkStopTest, LetsNoMoreCallbacksThrough) {
    int calls = 0;
    const auto link = makeDisplayLinkMaker()->make([&](std::uint64_t) { ++calls; });
    link->start();
    link->stop();
    FakeCoreVideo::refresh(2000);
    EXPECT_EQ(calls, 0);
}

INSTANTIATE_TEST_SUITE_P(WhateverCoreVideoDoes, CoreVideoDisplayLinkStopTest,
                         ::testing::Values(FakeCoreVideo::Stopping::returnsAtOnce,
                                           FakeCoreVideo::Stopping::waitsForRefresh),
                         byValue);

} // namespace

} // namespace tessaline
