#include "appearance/SystemPalette.h"
#include "prompter/Placeholder.h"
#include "support/Part.h"
#include "support/PrintQt.h"
#include "ui/ConfigWindowFixture.h"
#include "ui/OnboardingWindowFixture.h"
#include "ui/SpokenControls.h"
#include "ui/TextType.h"
#include "ui/controls/StatusDot.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::Pair;

TEST(PlaceholderOnAMac, NamesItsPasteKeys) {
    EXPECT_EQ(placeholderText(200).text, u"⌘V\nto paste"_s);
}

using OnboardingOnAMac = OnboardingWindowFixture;

TEST_F(OnboardingOnAMac, SpeaksOfTheNotchAndItsPermission) {
    EXPECT_EQ(
        shown().findChild<QLabel*>(u"onboarding_subtitle"_s)->text(),
        u"Turn your Mac's notch into a teleprompter. Read scripts, notes, or any text right from the top of your screen."_s);
    EXPECT_EQ(part<QLabel>(permission(), "titleLabel")->text(), u"Accessibility Access"_s);
    EXPECT_EQ(part<QLabel>(obsidian(), "statusLabel")->text(),
              u"Obsidian not detected on this Mac"_s);
}

TEST_F(OnboardingOnAMac, AsksForThePermissionOnRequest) {
    shown();
    EXPECT_EQ(
        part<QLabel>(permission(), "descriptionLabel")->text(),
        u"Lets you pause/resume auto-scroll and scroll through text even when Tessaline is not focused."_s);
    EXPECT_EQ(part<QPushButton>(permission(), "grantButton")->text(), u"Grant Access"_s);
    EXPECT_TRUE(part<QPushButton>(permission(), "grantButton")->isEnabled());
    EXPECT_EQ(part<StatusDot>(permission(), "statusIndicator")->accessibleName(), u"Not granted"_s);
    EXPECT_THAT(spokenControls(window()), Contains(Pair(QAccessible::Button, u"Grant Access"_s)));
    stage.processes.calls.clear();
    QTest::mouseClick(part<QPushButton>(permission(), "grantButton"), Qt::LeftButton);
    EXPECT_EQ(stage.processes.calls.size(), 1u);
    EXPECT_EQ(stage.trust.prompts, 1);
}

TEST_F(OnboardingOnAMac, SaysThatThePermissionIsGranted) {
    shown();
    stage.trust.trusted = true;
    stage.pass(1.0);
    EXPECT_EQ(part<QPushButton>(permission(), "grantButton")->text(), u"Permission Granted ✓"_s);
    EXPECT_FALSE(part<QPushButton>(permission(), "grantButton")->isEnabled());
    EXPECT_EQ(part<StatusDot>(permission(), "statusIndicator")->accessibleName(), u"Granted"_s);
}

TEST_F(OnboardingOnAMac, ReturnFinishesItAlsoOnTheButtonThatAsks) {
    shown().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    part<QPushButton>(permission(), "grantButton")->setFocus();
    QTest::keyClick(part<QPushButton>(permission(), "grantButton"), Qt::Key_Return);
    EXPECT_EQ(completions, 1);
    EXPECT_EQ(stage.trust.prompts, 0);
}

TEST_F(OnboardingOnAMac, SaysHowToSendANote) {
    stage.installObsidian();
    shown();
    EXPECT_EQ(part<QLabel>(obsidian(), "statusLabel")->text(),
              u"Send notes from Obsidian straight into the notch"_s);
    switchObsidian();
    ASSERT_TRUE(sheet());
    EXPECT_EQ(
        part<QLabel>(*sheet(), "informativeLabel")->text(),
        u"Restart Obsidian to activate.\n\nIn Obsidian, you'll find a \"Send to Tessaline\" icon in the sidebar, or press ⌘P and type \"tessaline\"."_s);
}

using SettingsOnAMac = ConfigWindowFixture;

TEST_F(SettingsOnAMac, ListTheKeysOfAMac) {
    shown();
    for (const QString& keys :
         {u"⌘ + V"_s, u"⌃ + Scroll"_s, u"⌃ + Scroll click"_s, u"⌃ + Two-finger tap"_s})
        EXPECT_TRUE(labelReading(window(), keys).isVisible());
}

TEST_F(SettingsOnAMac, AskForThePermissionAnew) {
    shown();
    EXPECT_EQ(control<QLabel>("accessibilityLabel").text(), u"Accessibility"_s);
    EXPECT_EQ(control<StatusDot>("accessibilityDot").accessibleName(), u"Not granted"_s);
    auto& fixButton = control<QPushButton>("accessibilityFixButton");
    EXPECT_EQ(fixButton.text(), u"Grant Access"_s);
    EXPECT_TRUE(fixButton.isVisible());
    QTest::mouseClick(&fixButton, Qt::LeftButton);
    ASSERT_EQ(stage.processes.calls.size(), 1u);
    EXPECT_EQ(stage.processes.calls[0].program, u"/usr/bin/tccutil"_s);
    EXPECT_EQ(stage.trust.prompts, 1);
}

TEST_F(SettingsOnAMac, NeedNoButtonOnceItIsGranted) {
    stage.trust.trusted = true;
    shown();
    EXPECT_EQ(control<QLabel>("accessibilityLabel").text(), u"Accessibility"_s);
    EXPECT_EQ(control<StatusDot>("accessibilityDot").accessibleName(), u"Granted"_s);
    EXPECT_FALSE(control<QPushButton>("accessibilityFixButton").isVisible());
}

} // namespace
} // namespace tessaline
