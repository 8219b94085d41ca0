#include "ShortcutsFixture.h"
#include "support/CaseName.h"

namespace tessaline {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Type = TapEvent::Type;
using Verdict = EventTap::Verdict;

constexpr ModifierFlags controlAndAllOthers =
    Modifier::control | Modifier::shift | Modifier::option | Modifier::command;
constexpr ModifierFlags allButControl = controlAndAllOthers & ~Modifier::control;

class ShortcutsEventTap : public ShortcutsFixture {
protected:
    void SetUp() override { setUpTrusted(); }
};

TEST_F(ShortcutsEventTap, ScrollsByEightyPointsPerLineOfAWheel) {
    EXPECT_EQ(eventTaps.send(wheel()), Verdict::swallow);
    TapEvent down = wheel();
    down.scrollingDeltaY = -2.0;
    EXPECT_EQ(eventTaps.send(down), Verdict::swallow);
    mainQueue.runAll();
    EXPECT_THAT(scrolls, ElementsAre(80.0, -160.0));
}

TEST_F(ShortcutsEventTap, ScrollsByExactlyThePointsOfAPreciseDevice) {
    TapEvent event = wheel();
    event.hasPreciseDeltas = true;
    event.scrollingDeltaY = -0.375;
    EXPECT_EQ(eventTaps.send(event), Verdict::swallow);
    mainQueue.runAll();
    EXPECT_THAT(scrolls, ElementsAre(-0.375));
}

TEST_F(ShortcutsEventTap, ScrollsWithOtherModifiersBesidesControl) {
    EXPECT_EQ(eventTaps.send(wheel(controlAndAllOthers)), Verdict::swallow);
    mainQueue.runAll();
    EXPECT_THAT(scrolls, ElementsAre(80.0));
}

TEST_F(ShortcutsEventTap, LeavesTheWorkToTheMainQueue) {
    eventTaps.send(wheel());
    eventTaps.send({.type = Type::rightMouseDown, .modifiers = Modifier::control});
    EXPECT_THAT(scrolls, IsEmpty());
    EXPECT_EQ(toggles, 0);
    EXPECT_EQ(mainQueue.pending(), 2U);
}

TEST_F(ShortcutsEventTap, DoesNothingFromTheMainQueueOnceTheShortcutsAreGone) {
    eventTaps.send(wheel());
    eventTaps.send({.type = Type::rightMouseDown, .modifiers = Modifier::control});
    shortcuts.reset();
    mainQueue.runAll();
    EXPECT_THAT(scrolls, IsEmpty());
    EXPECT_EQ(toggles, 0);
}

TEST_F(ShortcutsEventTap, PassesEventsOnOnceTheShortcutsAreGone) {
    shortcuts.reset();
    EXPECT_EQ(eventTaps.send(wheel()), Verdict::passOn);
    EXPECT_EQ(mainQueue.pending(), 0U);
}

class SwallowedButtons : public ShortcutsEventTap,
                         public ::testing::WithParamInterface<TapEvent> {};

TEST_P(SwallowedButtons, Toggle) {
    EXPECT_EQ(eventTaps.send(GetParam()), Verdict::swallow);
    mainQueue.runAll();
    EXPECT_EQ(toggles, 1);
}

INSTANTIATE_TEST_SUITE_P(
    Control, SwallowedButtons,
    ::testing::Values(
        TapEvent{.type = Type::otherMouseDown, .modifiers = Modifier::control, .buttonNumber = 2},
        TapEvent{.type = Type::otherMouseDown, .modifiers = Modifier::control, .buttonNumber = 3},
        TapEvent{.type = Type::rightMouseDown, .modifiers = Modifier::control, .buttonNumber = 1}),
    byMember<&TapEvent::buttonNumber>);

INSTANTIATE_TEST_SUITE_P(
    ControlAndOthers, SwallowedButtons,
    ::testing::Values(
        TapEvent{.type = Type::otherMouseDown, .modifiers = controlAndAllOthers, .buttonNumber = 2},
        TapEvent{.type = Type::otherMouseDown, .modifiers = controlAndAllOthers, .buttonNumber = 3},
        TapEvent{
            .type = Type::rightMouseDown, .modifiers = controlAndAllOthers, .buttonNumber = 1}),
    byMember<&TapEvent::buttonNumber>);

class PassedEvents : public ShortcutsEventTap, public ::testing::WithParamInterface<TapEvent> {};

TEST_P(PassedEvents, DoNothing) {
    EXPECT_EQ(eventTaps.send(GetParam()), Verdict::passOn);
    EXPECT_EQ(mainQueue.pending(), 0U);
}

INSTANTIATE_TEST_SUITE_P(
    WithoutControl, PassedEvents,
    ::testing::Values(
        TapEvent{.type = Type::scrollWheel, .scrollingDeltaY = 1.0},
        TapEvent{.type = Type::scrollWheel, .modifiers = allButControl, .scrollingDeltaY = 1.0},
        TapEvent{.type = Type::otherMouseDown, .buttonNumber = 2},
        TapEvent{.type = Type::otherMouseDown, .modifiers = allButControl, .buttonNumber = 2},
        TapEvent{.type = Type::otherMouseDown, .buttonNumber = 3},
        TapEvent{.type = Type::rightMouseDown, .buttonNumber = 1},
        TapEvent{.type = Type::rightMouseDown, .modifiers = allButControl, .buttonNumber = 1}),
    byMember<&TapEvent::buttonNumber>);

INSTANTIATE_TEST_SUITE_P(
    OtherButtons, PassedEvents,
    ::testing::Values(
        TapEvent{.type = Type::otherMouseDown, .modifiers = Modifier::control, .buttonNumber = 1},
        TapEvent{.type = Type::otherMouseDown, .modifiers = Modifier::control, .buttonNumber = 4},
        TapEvent{.type = Type::otherMouseDown, .modifiers = Modifier::control, .buttonNumber = 5}),
    byMember<&TapEvent::buttonNumber>);

INSTANTIATE_TEST_SUITE_P(OtherEvents, PassedEvents,
                         ::testing::Values(TapEvent{.type = Type::other,
                                                    .modifiers = Modifier::control},
                                           TapEvent{.type = Type::scrollWheel,
                                                    .modifiers = Modifier::control,
                                                    .isReadable = false}),
                         byMember<&TapEvent::buttonNumber>);

TEST_F(ShortcutsEventTap, SwitchesItselfOnAgainAfterTheSystemSwitchedItOff) {
    EXPECT_EQ(eventTaps.send({.type = Type::tapDisabled}), Verdict::passOn);
    EXPECT_EQ(eventTaps.enables, 1);
}

/// A tap that the system switches off before it has been handed over.
class HastyTapMaker final : public EventTapMaker {
public:
    std::unique_ptr<EventTap> create(EventTap::Handler handler) override {
        verdict = handler({.type = Type::tapDisabled});
        return nullptr;
    }

    Verdict verdict = Verdict::swallow;
};

TEST_F(ShortcutsEventTap, SwitchesNothingOnWhileThereIsNoTap) {
    shortcuts.reset(); // their tap goes before its maker
    auto hasty = std::make_unique<HastyTapMaker>();
    const HastyTapMaker& maker = *hasty;
    platform.eventTaps = std::move(hasty);
    Shortcuts other(platform, recorder, {});
    other.setupShortcuts();
    EXPECT_EQ(maker.verdict, Verdict::passOn);
}

} // namespace

} // namespace tessaline
