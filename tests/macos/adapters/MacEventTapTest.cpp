#include "macos/adapters/MacAdaptersFixture.h"
#include "platform/EventTap.h"
#include "platform/macos/MacAdapters.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::SizeIs;
using Type = TapEvent::Type;
using Verdict = EventTap::Verdict;

// As the system numbers them.
constexpr std::uint32_t rightMouseDown = 3;
constexpr std::uint32_t scrollWheel = 22;
constexpr std::uint32_t otherMouseDown = 25;
constexpr std::uint32_t mouseMoved = 5;
constexpr std::uint32_t disabledByTimeout = 0xFFFFFFFE;
constexpr std::uint32_t disabledByUserInput = 0xFFFFFFFF;

class MacEventTapTest : public MacAdaptersTest {
protected:
    std::unique_ptr<EventTap> make() {
        return maker->create([this](const TapEvent& event) {
            events.push_back(event);
            return verdict;
        });
    }

    std::unique_ptr<EventTapMaker> maker = makeEventTapMaker();
    std::vector<TapEvent> events;
    Verdict verdict = Verdict::passOn;
};

TEST_F(MacEventTapTest, FiltersButtonsAndTheWheelOfTheSessionAheadOfOthers) {
    const auto tap = make();
    ASSERT_TRUE(tap);
    EXPECT_THAT(takeCalls(),
                ElementsAre(u"tap 1 0 0 2400008"_s, u"add source of tap"_s, u"enable tap 1"_s));
    EXPECT_TRUE(tap->isOn());
}

TEST_F(MacEventTapTest, IsTakenOutOfTheRunLoopAndInvalidatedByItsEnd) {
    auto tap = make();
    takeCalls();
    tap.reset();
    EXPECT_THAT(takeCalls(), ElementsAre(u"remove source of tap"_s, u"invalidate tap"_s));
    EXPECT_EQ(sendThroughTap({.type = scrollWheel}), Passage::noTap);
}

TEST_F(MacEventTapTest, IsNotThereWhereTheSystemRefuses) {
    mac.allowsTaps = false;
    EXPECT_FALSE(make());
}

TEST_F(MacEventTapTest, LeavesNothingBehindWhereItCannotBeServed) {
    mac.allowsSources = false;
    EXPECT_FALSE(make());
    EXPECT_THAT(takeCalls(), ElementsAre(u"tap 1 0 0 2400008"_s, u"invalidate tap"_s));
}

TEST_F(MacEventTapTest, PassesEventsOnOrSwallowsThem) {
    const auto tap = make();
    EXPECT_EQ(sendThroughTap({.type = scrollWheel}), Passage::passedOn);
    verdict = Verdict::swallow;
    EXPECT_EQ(sendThroughTap({.type = scrollWheel}), Passage::swallowed);
    EXPECT_EQ(sendThroughTap({.type = rightMouseDown}), Passage::swallowed);
}

TEST_F(MacEventTapTest, ReadsTheWheel) {
    const auto tap = make();
    sendThroughTap({.type = scrollWheel, .flags = 0x40000, .deltaY = -2});
    sendThroughTap({.type = scrollWheel, .isPrecise = true, .deltaY = 0.375});
    ASSERT_THAT(events, SizeIs(2));
    EXPECT_EQ(events[0].type, Type::scrollWheel);
    EXPECT_EQ(events[0].modifiers, Modifier::control);
    EXPECT_TRUE(events[0].isReadable);
    EXPECT_FALSE(events[0].hasPreciseDeltas);
    EXPECT_EQ(events[0].scrollingDeltaY, -2);
    EXPECT_TRUE(events[1].hasPreciseDeltas);
    EXPECT_EQ(events[1].scrollingDeltaY, 0.375);
}

TEST_F(MacEventTapTest, SaysOfAWheelThatItCannotBeRead) {
    const auto tap = make();
    sendThroughTap({.type = scrollWheel, .isReadable = false});
    ASSERT_THAT(events, SizeIs(1));
    EXPECT_EQ(events[0].type, Type::scrollWheel);
    EXPECT_FALSE(events[0].isReadable);
}

TEST_F(MacEventTapTest, ReadsButtonsWithoutLocksAndSides) {
    const auto tap = make();
    sendThroughTap({.type = otherMouseDown, .flags = 0x10000 | 0x40000 | 0x2001, .button = 3});
    sendThroughTap({.type = rightMouseDown, .flags = 0x1E0100, .button = 1});
    sendThroughTap({.type = mouseMoved});
    ASSERT_THAT(events, SizeIs(3));
    EXPECT_EQ(events[0].type, Type::otherMouseDown);
    EXPECT_EQ(events[0].buttonNumber, 3);
    EXPECT_EQ(events[0].modifiers, Modifier::control);
    EXPECT_EQ(events[1].type, Type::rightMouseDown);
    EXPECT_EQ(events[1].modifiers,
              Modifier::shift | Modifier::control | Modifier::option | Modifier::command);
    EXPECT_EQ(events[2].type, Type::other);
}

TEST_F(MacEventTapTest, TellsThatItWasSwitchedOffAndIsSwitchedOnOnRequest) {
    const auto tap = make();
    EXPECT_EQ(switchTapOff(disabledByTimeout), Passage::passedOn);
    EXPECT_FALSE(tap->isOn());
    EXPECT_EQ(switchTapOff(disabledByUserInput), Passage::passedOn);
    ASSERT_THAT(events, SizeIs(2));
    EXPECT_EQ(events[0].type, Type::tapDisabled);
    EXPECT_EQ(events[1].type, Type::tapDisabled);
    takeCalls();
    tap->enable();
    EXPECT_THAT(takeCalls(), ElementsAre(u"enable tap 1"_s));
    EXPECT_TRUE(tap->isOn());
}

TEST_F(MacEventTapTest, TriesWhetherAFilterWouldBeAllowedAndThrowsItAway) {
    EXPECT_TRUE(maker->wouldAllow());
    EXPECT_THAT(takeCalls(), ElementsAre(u"tap 1 0 0 2000000"_s, u"invalidate probe"_s));
    mac.allowsTaps = false;
    EXPECT_FALSE(maker->wouldAllow());
    EXPECT_THAT(takeCalls(), ElementsAre(u"tap 1 0 0 2000000"_s));
}

} // namespace
} // namespace tessaline
