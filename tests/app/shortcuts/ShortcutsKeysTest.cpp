#include "ShortcutsFixture.h"
#include "support/CaseName.h"

namespace tessaline {

namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ShortcutsKeys : public ShortcutsFixture {
protected:
    static KeyEvent arrow(int keyCode, ModifierFlags modifiers) {
        return {.keyCode = keyCode, .modifiers = modifiers};
    }

    void expectNothingDone() const {
        EXPECT_EQ(pastes, 0);
        EXPECT_EQ(toggles, 0);
        EXPECT_THAT(scrolls, IsEmpty());
    }
};

TEST_F(ShortcutsKeys, PasteOnCommandV) {
    EXPECT_TRUE(shortcuts->handleKeyDown(key(Modifier::command, u"v"_s)));
    EXPECT_EQ(pastes, 1);
}

TEST_F(ShortcutsKeys, PasteOnAnUpperCaseVToo) {
    EXPECT_TRUE(shortcuts->handleKeyDown(key(Modifier::command, u"V"_s)));
    EXPECT_EQ(pastes, 1);
}

TEST_F(ShortcutsKeys, ScrollUpOnControlUpArrow) {
    EXPECT_TRUE(shortcuts->handleKeyDown(arrow(KeyEvent::upArrow, Modifier::control)));
    EXPECT_THAT(scrolls, ElementsAre(40.0));
}

TEST_F(ShortcutsKeys, ScrollDownOnControlDownArrow) {
    EXPECT_TRUE(shortcuts->handleKeyDown(arrow(KeyEvent::downArrow, Modifier::control)));
    EXPECT_THAT(scrolls, ElementsAre(-40.0));
}

TEST_F(ShortcutsKeys, ScrollWithOtherModifiersToo) {
    const ModifierFlags all = toggleModifiers | Modifier::option;
    EXPECT_TRUE(shortcuts->handleKeyDown(arrow(KeyEvent::upArrow, all)));
    EXPECT_TRUE(
        shortcuts->handleKeyDown(arrow(KeyEvent::downArrow, Modifier::control | Modifier::shift)));
    EXPECT_THAT(scrolls, ElementsAre(40.0, -40.0));
}

TEST_F(ShortcutsKeys, ScrollOnForAsLongAsAnArrowKeyIsHeld) {
    KeyEvent held = arrow(KeyEvent::upArrow, Modifier::control);
    shortcuts->handleKeyDown(held);
    held.isRepeat = true;
    EXPECT_TRUE(shortcuts->handleKeyDown(held));
    EXPECT_THAT(scrolls, ElementsAre(40.0, 40.0));
}

TEST_F(ShortcutsKeys, ToggleOnControlShiftCommandT) {
    EXPECT_TRUE(shortcuts->handleKeyDown(toggleKey()));
    EXPECT_TRUE(shortcuts->handleKeyDown(key(toggleModifiers, u"T"_s)));
    EXPECT_EQ(toggles, 2);
}

TEST_F(ShortcutsKeys, ToggleOnceForAKeyThatIsHeld) {
    KeyEvent held = toggleKey();
    shortcuts->handleKeyDown(held);
    held.isRepeat = true;
    EXPECT_TRUE(shortcuts->handleKeyDown(held));
    EXPECT_EQ(toggles, 1);
}

class UnusedKeys : public ShortcutsKeys, public ::testing::WithParamInterface<KeyEvent> {};

TEST_P(UnusedKeys, ArePassedOn) {
    EXPECT_FALSE(shortcuts->handleKeyDown(GetParam()));
    expectNothingDone();
}

INSTANTIATE_TEST_SUITE_P(
    V, UnusedKeys,
    ::testing::Values(
        KeyEvent{.characters = u"v"_s},
        KeyEvent{.characters = u"v"_s, .modifiers = Modifier::command | Modifier::shift},
        KeyEvent{.characters = u"v"_s, .modifiers = Modifier::command | Modifier::option},
        KeyEvent{.characters = u"v"_s, .modifiers = Modifier::command | Modifier::control},
        KeyEvent{.characters = u"v"_s, .modifiers = Modifier::control},
        KeyEvent{.characters = u"vv"_s, .modifiers = Modifier::command},
        KeyEvent{.characters = u"c"_s, .modifiers = Modifier::command},
        KeyEvent{.modifiers = Modifier::command}),
    byMember<&KeyEvent::characters>);

INSTANTIATE_TEST_SUITE_P(
    Arrows, UnusedKeys,
    ::testing::Values(KeyEvent{.keyCode = KeyEvent::upArrow},
                      KeyEvent{.keyCode = KeyEvent::downArrow},
                      KeyEvent{.keyCode = KeyEvent::upArrow, .modifiers = Modifier::command},
                      KeyEvent{.keyCode = KeyEvent::downArrow,
                               .modifiers = Modifier::shift | Modifier::option},
                      KeyEvent{.keyCode = 123, .modifiers = Modifier::control},
                      KeyEvent{.keyCode = 124, .modifiers = Modifier::control}),
    byMember<&KeyEvent::keyCode>);

INSTANTIATE_TEST_SUITE_P(
    T, UnusedKeys,
    ::testing::Values(
        KeyEvent{.characters = u"t"_s},
        KeyEvent{.characters = u"t"_s, .modifiers = Modifier::control | Modifier::shift},
        KeyEvent{.characters = u"t"_s, .modifiers = Modifier::control | Modifier::command},
        KeyEvent{.characters = u"t"_s, .modifiers = Modifier::shift | Modifier::command},
        KeyEvent{.characters = u"t"_s,
                 .modifiers = Modifier::control | Modifier::shift | Modifier::command |
                              Modifier::option},
        KeyEvent{.characters = u"y"_s,
                 .modifiers = Modifier::control | Modifier::shift | Modifier::command}),
    byMember<&KeyEvent::characters>);

TEST_F(ShortcutsKeys, InOurWindowsAreConsumedOnlyWhenTheyAreUsed) {
    shortcuts->setupShortcuts();
    EXPECT_TRUE(localKeys.press(toggleKey()));
    EXPECT_FALSE(localKeys.press(key(0, u"a"_s)));
    EXPECT_EQ(toggles, 1);
}

TEST_F(ShortcutsKeys, InOurWindowsArePassedOnOnceTheShortcutsAreGone) {
    shortcuts->setupShortcuts();
    shortcuts.reset();
    EXPECT_FALSE(localKeys.press(toggleKey()));
    expectNothingDone();
}

TEST_F(ShortcutsKeys, InOtherApplicationsToggleByTheChord) {
    setUpTrusted();
    globalKeys.press(toggleKey());
    globalKeys.press(key(toggleModifiers, u"T"_s));
    EXPECT_EQ(toggles, 2);
}

TEST_F(ShortcutsKeys, InOtherApplicationsToggleOnceForAKeyThatIsHeld) {
    setUpTrusted();
    KeyEvent held = toggleKey();
    globalKeys.press(held);
    held.isRepeat = true;
    globalKeys.press(held);
    EXPECT_EQ(toggles, 1);
}

TEST_F(ShortcutsKeys, InOtherApplicationsDoNothingElse) {
    setUpTrusted();
    globalKeys.press(key(Modifier::command, u"v"_s));
    globalKeys.press(arrow(KeyEvent::upArrow, Modifier::control));
    globalKeys.press(arrow(KeyEvent::downArrow, Modifier::control));
    globalKeys.press(key(toggleModifiers | Modifier::option, u"t"_s));
    globalKeys.press(key(toggleModifiers, u"y"_s));
    expectNothingDone();
}

TEST_F(ShortcutsKeys, InOtherApplicationsDoNothingOnceTheShortcutsAreGone) {
    setUpTrusted();
    shortcuts.reset();
    globalKeys.press(toggleKey());
    expectNothingDone();
}

TEST_F(ShortcutsKeys, AskForTheToggleChordOnly) {
    setUpTrusted();
    ASSERT_EQ(globalKeys.chords.size(), 1U);
    EXPECT_EQ(globalKeys.chords[0].modifiers, toggleModifiers);
    EXPECT_EQ(globalKeys.chords[0].characters, u"t"_s);
}

} // namespace

} // namespace tessaline
