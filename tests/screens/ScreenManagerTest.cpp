#include "screens/ScreenManager.h"

#include "support/FakeScreens.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;

constexpr std::uint32_t notebookID = 11;
constexpr std::uint32_t projectorID = 22;
constexpr std::uint32_t officeID = 33;

Screen notebook() {
    return {.id = notebookID,
            .name = u"eDP-1"_s,
            .frame = {0, 0, 1512, 982},
            .visibleFrame = {0, 0, 1512, 950},
            .builtIn = true,
            .refreshRate = 120.0};
}

Screen projector() {
    return {.id = projectorID,
            .name = u"HDMI-1"_s,
            .frame = {1512, 0, 1920, 1080},
            .visibleFrame = {1512, 0, 1920, 1056},
            .builtIn = false,
            .refreshRate = 60.0};
}

Screen office() {
    return {.id = officeID,
            .name = u"DP-1"_s,
            .frame = {-1920, 0, 1920, 1080},
            .visibleFrame = {-1920, 0, 1920, 1080},
            .builtIn = false,
            .refreshRate = 60.0};
}

class ScreenManagerTest : public ::testing::Test {
protected:
    void changeScreens() {
        notifications.post({Screens::parametersDidChangeNotification(), &screens, {}});
    }

    FakeScreens screens;
    NotificationCenter notifications;
};

TEST_F(ScreenManagerTest, StartsWithoutPreferenceAndCallback) {
    const ScreenManager manager(screens, notifications);
    EXPECT_EQ(manager.preferredDisplayID, std::nullopt);
    EXPECT_FALSE(manager.onScreenChange);
}

TEST_F(ScreenManagerTest, PrefersTheChosenDisplayToTheBuiltInAndTheMainOne) {
    screens.attached = {notebook(), projector(), office()};
    screens.main = projector();
    ScreenManager manager(screens, notifications);
    manager.preferredDisplayID = officeID;
    EXPECT_EQ(manager.preferredScreen(), office());
}

TEST_F(ScreenManagerTest, TakesTheFirstOfSeveralDisplaysWithTheChosenNumber) {
    Screen twin = projector();
    twin.id = officeID;
    screens.attached = {notebook(), twin, office()};
    ScreenManager manager(screens, notifications);
    manager.preferredDisplayID = officeID;
    EXPECT_EQ(manager.preferredScreen(), twin);
}

TEST_F(ScreenManagerTest, ChoosesTheBuiltInDisplayBeforeTheMainOne) {
    screens.attached = {office(), notebook(), projector()};
    screens.main = projector();
    const ScreenManager manager(screens, notifications);
    EXPECT_EQ(manager.preferredScreen(), notebook());
}

TEST_F(ScreenManagerTest, ChoosesTheMainDisplayOnAMachineWithoutABuiltInOne) {
    screens.attached = {office(), projector()};
    screens.main = projector();
    const ScreenManager manager(screens, notifications);
    EXPECT_EQ(manager.preferredScreen(), projector());
}

TEST_F(ScreenManagerTest, ChoosesTheFirstDisplayWhenNoneIsMain) {
    screens.attached = {office(), projector()};
    const ScreenManager manager(screens, notifications);
    EXPECT_EQ(manager.preferredScreen(), office());
}

TEST_F(ScreenManagerTest, AnswersWithAnEmptyScreenWithoutAnyDisplay) {
    ScreenManager manager(screens, notifications);
    manager.preferredDisplayID = officeID;
    EXPECT_EQ(manager.preferredScreen(), Screen());
}

TEST_F(ScreenManagerTest, ReturnsToTheChosenDisplayWhenItIsPluggedInAgain) {
    screens.attached = {notebook(), projector()};
    screens.main = notebook();
    ScreenManager manager(screens, notifications);
    manager.preferredDisplayID = projectorID;
    ASSERT_EQ(manager.preferredScreen(), projector());

    screens.attached = {notebook()};
    changeScreens();
    EXPECT_EQ(manager.preferredScreen(), notebook());
    EXPECT_EQ(manager.preferredDisplayID, projectorID);

    screens.attached = {notebook(), projector()};
    changeScreens();
    EXPECT_EQ(manager.preferredScreen(), projector());
}

TEST_F(ScreenManagerTest, AnnouncesEachOfTwoConsecutiveChanges) {
    ScreenManager manager(screens, notifications);
    std::vector<const void*> senders;
    const auto observer = notifications.observe(u"ScreenManagerScreenDidChange"_s,
                                                [&](const Notification& notification) {
                                                    senders.push_back(notification.sender);
                                                    EXPECT_TRUE(notification.userInfo.empty());
                                                });
    int calls = 0;
    manager.onScreenChange = [&] { ++calls; };

    changeScreens();
    changeScreens();

    EXPECT_THAT(senders, ElementsAre(&manager, &manager));
    EXPECT_EQ(calls, 2);
}

TEST_F(ScreenManagerTest, PostsTheNotificationBeforeItCallsBack) {
    ScreenManager manager(screens, notifications);
    std::vector<QString> order;
    const auto observer =
        notifications.observe(ScreenManager::screenDidChangeNotification(),
                              [&](const Notification&) { order.push_back(u"notification"_s); });
    manager.onScreenChange = [&] { order.push_back(u"callback"_s); };

    changeScreens();

    EXPECT_THAT(order, ElementsAre(u"notification"_s, u"callback"_s));
}

TEST_F(ScreenManagerTest, PostsTheNotificationWithoutACallback) {
    const ScreenManager manager(screens, notifications);
    int posts = 0;
    const auto observer = notifications.observe(ScreenManager::screenDidChangeNotification(),
                                                [&](const Notification&) { ++posts; });
    changeScreens();
    EXPECT_EQ(posts, 1);
}

TEST_F(ScreenManagerTest, HearsNothingMoreOnceItIsGone) {
    auto manager = std::make_unique<ScreenManager>(screens, notifications);
    int calls = 0;
    manager->onScreenChange = [&] { ++calls; };
    int posts = 0;
    const auto observer = notifications.observe(ScreenManager::screenDidChangeNotification(),
                                                [&](const Notification&) { ++posts; });
    changeScreens();
    manager.reset();
    changeScreens();
    EXPECT_EQ(calls, 1);
    EXPECT_EQ(posts, 1);
}

} // namespace
} // namespace tessaline
