#include "ShortcutsFixture.h"

#include "support/PrintQt.h"

namespace tessaline {

namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr const char* tapFailure = "Failed to create scroll event tap\n";

class ShortcutsPermission : public ShortcutsFixture {
protected:
    void setTrust(bool trusted) {
        trust.trusted = trusted;
        timers.advance(2.0);
    }

    void expectInstalled(int monitors, int taps) const {
        EXPECT_THAT(globalKeys.chords, SizeIs(monitors));
        EXPECT_EQ(eventTaps.attempts, taps);
    }
};

TEST_F(ShortcutsPermission, NothingIsInstalledBeforeTheSetUp) {
    trust.trusted = true;
    timers.advance(10.0);
    EXPECT_EQ(localKeys.starts, 0);
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
    expectInstalled(0, 0);
}

TEST_F(ShortcutsPermission, LocalKeysAndThePollNeedNone) {
    shortcuts->setupShortcuts();
    EXPECT_EQ(localKeys.starts, 1);
    EXPECT_THAT(timers.liveIntervals(), ElementsAre(2.0));
    expectInstalled(0, 0);
    EXPECT_TRUE(localKeys.press(toggleKey()));
    EXPECT_EQ(toggles, 1);
}

TEST_F(ShortcutsPermission, InstallsAtOnceWhatNeedsOneIfItIsThere) {
    setUpTrusted();
    expectInstalled(1, 1);
    EXPECT_EQ(eventTaps.liveTaps, 1);
    EXPECT_THAT(recorder.events, IsEmpty());
}

TEST_F(ShortcutsPermission, GrantedWhileRunningInstallsWithinTwoSeconds) {
    shortcuts->setupShortcuts();
    trust.trusted = true;
    timers.advance(1.9);
    expectInstalled(0, 0);
    timers.advance(0.1);
    expectInstalled(1, 1);
    eventTaps.send(wheel());
    mainQueue.runAll();
    EXPECT_THAT(scrolls, ElementsAre(80.0));
}

TEST_F(ShortcutsPermission, ChangesAreRecorded) {
    shortcuts->setupShortcuts();
    setTrust(true);
    setTrust(false);
    ASSERT_THAT(recorder.events, SizeIs(2));
    RecordingUsageRecorder expected;
    expected.trackPermissionStatus(PermissionType::accessibility, true);
    expected.trackPermissionStatus(PermissionType::accessibility, false);
    for (std::size_t i = 0; i < 2; ++i) {
        EXPECT_EQ(recorder.events[i].name, expected.events[i].name);
        EXPECT_EQ(recorder.events[i].properties, expected.events[i].properties);
    }
}

TEST_F(ShortcutsPermission, IsRecordedOnlyWhenItChanges) {
    setUpTrusted();
    timers.advance(20.0);
    EXPECT_THAT(recorder.events, IsEmpty());
}

TEST_F(ShortcutsPermission, RevokedLeavesEverythingInstalled) {
    setUpTrusted();
    setTrust(false);
    EXPECT_EQ(eventTaps.liveTaps, 1);
    EXPECT_THAT(timers.liveIntervals(), ElementsAre(2.0));
    globalKeys.press(toggleKey());
    EXPECT_EQ(eventTaps.send(wheel()), EventTap::Verdict::swallow);
    EXPECT_EQ(toggles, 1);
}

TEST_F(ShortcutsPermission, GrantedAgainInstallsNothingTwice) {
    setUpTrusted();
    setTrust(false);
    setTrust(true);
    timers.advance(20.0);
    expectInstalled(1, 1);
    EXPECT_EQ(eventTaps.liveTaps, 1);
}

TEST_F(ShortcutsPermission, ATapThatTheSystemKeepsOffGoesAndComesBackWithTheNextGrant) {
    setUpTrusted();
    eventTaps.allowed = false;
    setTrust(false);
    eventTaps.switchOff();
    EXPECT_EQ(eventTaps.enables, 0);
    mainQueue.runAll();
    EXPECT_EQ(eventTaps.liveTaps, 0);
    eventTaps.allowed = true;
    setTrust(true);
    EXPECT_EQ(eventTaps.liveTaps, 1);
    EXPECT_EQ(eventTaps.send(wheel()), EventTap::Verdict::swallow);
}

TEST_F(ShortcutsPermission, ThePollDropsATapThatWentOffWithoutAWord) {
    setUpTrusted();
    eventTaps.isOn = false;
    setTrust(false);
    EXPECT_EQ(eventTaps.liveTaps, 0);
}

TEST_F(ShortcutsPermission, AChordHeldByAnotherProgramIsTriedAgainByThePoll) {
    globalKeys.allowed = false;
    setUpTrusted();
    expectInstalled(1, 1);
    globalKeys.allowed = true;
    timers.advance(2.0);
    expectInstalled(2, 1);
    globalKeys.press(toggleKey());
    EXPECT_EQ(toggles, 1);
    timers.advance(2.0);
    expectInstalled(2, 1);
}

TEST_F(ShortcutsPermission, ATapThatCannotBeCreatedIsReportedAndTriedAgainByThePoll) {
    eventTaps.allowed = false;
    ::testing::internal::CaptureStdout();
    setUpTrusted();
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), tapFailure);
    EXPECT_EQ(eventTaps.liveTaps, 0);
    eventTaps.allowed = true;
    timers.advance(2.0);
    expectInstalled(1, 2);
    EXPECT_EQ(eventTaps.liveTaps, 1);
}

TEST_F(ShortcutsPermission, ATapThatKeepsFailingIsReportedOncePerGrant) {
    eventTaps.allowed = false;
    ::testing::internal::CaptureStdout();
    setUpTrusted();
    timers.advance(6.0);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), tapFailure);
    EXPECT_EQ(eventTaps.attempts, 4);

    setTrust(false);
    EXPECT_EQ(eventTaps.attempts, 4);
    ::testing::internal::CaptureStdout();
    setTrust(true);
    EXPECT_EQ(::testing::internal::GetCapturedStdout(), tapFailure);
}

TEST_F(ShortcutsPermission, ATapThatFailsLeavesTheKeysWorking) {
    eventTaps.allowed = false;
    ::testing::internal::CaptureStdout();
    setUpTrusted();
    ::testing::internal::GetCapturedStdout();
    globalKeys.press(toggleKey());
    EXPECT_TRUE(localKeys.press(toggleKey()));
    EXPECT_EQ(toggles, 2);
}

TEST_F(ShortcutsPermission, ThePollEndsWithTheShortcuts) {
    setUpTrusted();
    shortcuts.reset();
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
    EXPECT_EQ(eventTaps.liveTaps, 0);
}

TEST_F(ShortcutsPermission, AsksForNoTapWhereGesturesAreNotSeen) {
    trust.told = AccessibilityTrust::Report{.isWhole = true, .gesturesAreSeen = false};
    setUpTrusted();
    EXPECT_EQ(globalKeys.chords.size(), 1U);
    EXPECT_EQ(eventTaps.attempts, 0);
}

} // namespace

} // namespace tessaline
