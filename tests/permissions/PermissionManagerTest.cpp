#include "permissions/PermissionManager.h"

#include "platform/NotificationCenter.h"
#include "settings/PermissionType.h"
#include "support/CaseName.h"
#include "support/FakeAccessibilityTrust.h"
#include "support/FakeBundleInformation.h"
#include "support/FakeMainQueue.h"
#include "support/FakeProcessRunner.h"
#include "support/FakeTimerMaker.h"
#include "support/TestPlatform.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;

class PermissionManagerTest : public testing::Test, public TestPlatform {
protected:
    std::unique_ptr<PermissionManager> manager = std::make_unique<PermissionManager>(platform);

    std::vector<bool> announced;
    NotificationCenter::Observation observer =
        notifications.observe(PermissionManager::permissionStatusDidChangeNotification(),
                              [this](const Notification& change) {
                                  const auto* permission =
                                      change.value<PermissionType>(u"permission"_s);
                                  const auto* granted = change.value<bool>(u"granted"_s);
                                  ASSERT_TRUE(permission && granted);
                                  EXPECT_EQ(*permission, PermissionType::accessibility);
                                  EXPECT_EQ(change.sender, manager.get());
                                  announced.push_back(*granted);
                              });

    void pass(double seconds) {
        timers.advance(seconds);
        mainQueue.runAll();
    }
};

/// Remembers how many prompts had been asked for when a program ran.
class PromptCounter final : public ProcessRunner {
public:
    explicit PromptCounter(const FakeAccessibilityTrust& watched) : trust(watched) {}

    ProcessResult run(const QString& /*program*/, const QStringList& /*arguments*/,
                      const ProcessLimits& /*limits*/) override {
        promptsBefore.push_back(trust.prompts);
        return {};
    }

    void stop() override {}

    std::vector<int> promptsBefore;

private:
    const FakeAccessibilityTrust& trust;
};

TEST_F(PermissionManagerTest, NamesItsNotification) {
    EXPECT_EQ(PermissionManager::permissionStatusDidChangeNotification(),
              u"PermissionManagerStatusDidChange"_s);
}

TEST_F(PermissionManagerTest, DoesNotPollBeforeItIsAskedTo) {
    trust.trusted = true;
    pass(60);
    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(PermissionManagerTest, SaysNothingAsLongAsThePermissionStaysAsItWas) {
    manager->startPolling(1.0);
    pass(3600);
    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(PermissionManagerTest, AnnouncesAGrantAndARevocationOnceEach) {
    manager->startPolling(1.0);
    trust.trusted = true;
    pass(1);
    EXPECT_THAT(announced, ElementsAre(true));
    pass(5);
    trust.trusted = false;
    pass(1);
    pass(5);
    EXPECT_THAT(announced, ElementsAre(true, false));
}

TEST_F(PermissionManagerTest, AnnouncesThroughTheMainQueue) {
    manager->startPolling(1.0);
    trust.trusted = true;
    timers.advance(1);
    EXPECT_THAT(announced, IsEmpty());
    mainQueue.runAll();
    EXPECT_THAT(announced, ElementsAre(true));
}

TEST_F(PermissionManagerTest, CountsChangesFromTheStateWhenPollingStarted) {
    trust.trusted = true;
    manager->startPolling(1.0);
    pass(2);
    EXPECT_THAT(announced, IsEmpty());
}

TEST_F(PermissionManagerTest, KeepsOneTimerWhenPollingIsStartedTwice) {
    manager->startPolling(5.0);
    manager->startPolling(1.0);
    EXPECT_THAT(timers.liveIntervals(), ElementsAre(1.0));
    trust.trusted = true;
    pass(1);
    EXPECT_THAT(announced, ElementsAre(true));
}

TEST_F(PermissionManagerTest, StopsPolling) {
    manager->startPolling(1.0);
    manager->stopPolling();
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
}

TEST_F(PermissionManagerTest, AnnouncesNothingOnceItIsGone) {
    manager->startPolling(1.0);
    trust.trusted = true;
    timers.advance(1);
    manager.reset();
    mainQueue.runAll();
    EXPECT_THAT(announced, IsEmpty());
    EXPECT_THAT(timers.liveIntervals(), IsEmpty());
}

TEST_F(PermissionManagerTest, ClearsTheStaleEntryBeforeItAsksForThePrompt) {
    auto watching = std::make_unique<PromptCounter>(trust);
    const PromptCounter& counter = *watching;
    platform.processes = std::move(watching);
    manager->resetAndRequestAccessibility();
    EXPECT_THAT(counter.promptsBefore, ElementsAre(0));
    EXPECT_EQ(trust.prompts, 1);
}

class StaleEntry : public PermissionManagerTest, public testing::WithParamInterface<int> {};

TEST_P(StaleEntry, IsClearedByTheSystemsToolWhoseFailureDoesNotMatter) {
    processes.result = {.exitCode = GetParam()};
    manager->resetAndRequestAccessibility();
    EXPECT_THAT(processes.calls, ElementsAre(FakeProcessRunner::Call{
                                     u"/usr/bin/tccutil"_s,
                                     {u"reset"_s, u"Accessibility"_s, u"app.example.Program"_s}}));
    EXPECT_EQ(trust.prompts, 1);
}

// -1: there is no such tool.
INSTANTIATE_TEST_SUITE_P(ExitCodes, StaleEntry, testing::Values(0, 1, -1), byValue);

TEST_F(PermissionManagerTest, LeavesTheEntryAloneWhileItIsTrusted) {
    trust.trusted = true;
    manager->resetAndRequestAccessibility();
    EXPECT_THAT(processes.calls, IsEmpty());
    EXPECT_EQ(trust.prompts, 1);
}

TEST_F(PermissionManagerTest, CannotClearAnEntryWithoutAnIdentifier) {
    bundle.bundleIdentifier.reset();
    manager->resetAndRequestAccessibility();
    EXPECT_THAT(processes.calls, IsEmpty());
    EXPECT_EQ(trust.prompts, 1);
}

} // namespace
} // namespace tessaline
