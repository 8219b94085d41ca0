#include "platform/NotificationCenter.h"

#include <gmock/gmock.h>

#include <optional>

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;

namespace tessaline {
namespace {

enum class Colour { red, green };

class NotificationCenterTest : public ::testing::Test {
protected:
    /// An observation that appends `number` to `calls`.
    [[nodiscard]] NotificationCenter::Observation observe(int number, const QString& name = u"A"_s,
                                                          const void* from = nullptr) {
        return center->observe(
            name, [this, number](const Notification&) { calls.push_back(number); }, from);
    }

    std::optional<NotificationCenter> center{std::in_place};
    std::vector<int> calls;
    int sender = 0;
    int otherSender = 0;
};

TEST_F(NotificationCenterTest, CallsTheObserversOfANameInTheirOrder) {
    const auto first = observe(1);
    const auto other = observe(2, u"B"_s);
    const auto last = observe(3);
    center->post({u"A"_s, &sender, {}});
    EXPECT_THAT(calls, ElementsAre(1, 3));
}

TEST_F(NotificationCenterTest, DeliversBeforePostReturnsWithSenderAndUserInfo) {
    const void* from = nullptr;
    Colour colour = Colour::red;
    const auto observation = center->observe(u"A"_s, [&](const Notification& notification) {
        from = notification.sender;
        colour = *notification.value<Colour>(u"colour"_s);
    });
    center->post({u"A"_s, &sender, {{u"colour"_s, Colour::green}}});
    EXPECT_EQ(from, &sender);
    EXPECT_EQ(colour, Colour::green);
}

TEST_F(NotificationCenterTest, CallsAnObserverOfOneSenderForThatSenderOnly) {
    const auto observation = observe(1, u"A"_s, &sender);
    center->post({u"A"_s, &otherSender, {}});
    EXPECT_THAT(calls, ElementsAre());
    center->post({u"A"_s, &sender, {}});
    EXPECT_THAT(calls, ElementsAre(1));
}

TEST_F(NotificationCenterTest, ForgetsAnObserverWithItsObservation) {
    auto observation = observe(1);
    observation = {};
    center->post({u"A"_s, &sender, {}});
    EXPECT_THAT(calls, ElementsAre());
}

TEST_F(NotificationCenterTest, DoesNotCallAnObserverThatAnEarlierOneDropped) {
    NotificationCenter::Observation dropped;
    const auto dropper = center->observe(u"A"_s, [&](const Notification&) { dropped = {}; });
    dropped = observe(1);
    center->post({u"A"_s, &sender, {}});
    EXPECT_THAT(calls, ElementsAre());
}

TEST_F(NotificationCenterTest, LetsAnObserverDropItself) {
    NotificationCenter::Observation self;
    self = center->observe(u"A"_s, [&](const Notification&) {
        self = {};
        calls.push_back(1);
    });
    center->post({u"A"_s, &sender, {}});
    center->post({u"A"_s, &sender, {}});
    EXPECT_THAT(calls, ElementsAre(1));
}

TEST_F(NotificationCenterTest, TellsAnObserverAddedWhilePostingAboutTheNextNotification) {
    std::vector<NotificationCenter::Observation> added;
    const auto adder =
        center->observe(u"A"_s, [&](const Notification&) { added.push_back(observe(1)); });
    center->post({u"A"_s, &sender, {}});
    EXPECT_THAT(calls, ElementsAre());
    center->post({u"A"_s, &sender, {}});
    EXPECT_THAT(calls, ElementsAre(1));
}

TEST_F(NotificationCenterTest, MayGoBeforeItsObservers) {
    const auto observation = observe(1);
    center.reset();
    EXPECT_THAT(calls, ElementsAre());
}

TEST(Notification, HasNoValueForAMissingKeyOrAnotherType) {
    const Notification notification{u"A"_s, nullptr, {{u"colour"_s, Colour::green}}};
    EXPECT_EQ(notification.value<Colour>(u"sound"_s), nullptr);
    EXPECT_EQ(notification.value<QString>(u"colour"_s), nullptr);
}

} // namespace
} // namespace tessaline
