#include "AppDelegateFixture.h"

#include "prompter/PrompterWindow.h"
#include "support/PrintQt.h"
#include "ui/OnboardingWindow.h"

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

/// Starts for the first time.
class FirstRunTest : public AppDelegateFixture {
protected:
    FirstRunTest() {
        configure([](PersistedSettings& settings) { settings.hasCompletedOnboarding = false; });
    }
};

TEST_F(FirstRunTest, ShowsTheFirstRunWindowAndNothingElse) {
    trust.trusted = true;
    launch();
    ASSERT_TRUE(onboarding());
    EXPECT_TRUE(onboarding()->isVisible());
    EXPECT_FALSE(prompter()->isVisible());
    EXPECT_THAT(activationPolicy.kinds, ElementsAre(ActivationPolicy::Kind::regular));
    EXPECT_EQ(activationPolicy.activations, 1);
    EXPECT_EQ(localKeys.starts, 0);
    EXPECT_THAT(globalKeys.chords, IsEmpty());
    EXPECT_EQ(eventTaps.attempts, 0);
    EXPECT_TRUE(recorded(u"onboarding_started"_s));
    EXPECT_FALSE(recorded(u"content_loaded"_s));
}

TEST_F(FirstRunTest, StartsNormallyOnceItIsCompleted) {
    launch();
    onboarding()->onComplete();
    EXPECT_THAT(activationPolicy.kinds,
                ElementsAre(ActivationPolicy::Kind::regular, ActivationPolicy::Kind::accessory));
    EXPECT_TRUE(prompter()->isVisible());
    EXPECT_EQ(localKeys.starts, 1);
    EXPECT_TRUE(recorded(u"content_loaded"_s));
}

TEST_F(FirstRunTest, StartsNormallyWhenItIsSkippedAndComesBackNextTime) {
    launch();
    onboarding()->onSkip();
    EXPECT_TRUE(prompter()->isVisible());
    EXPECT_FALSE(savedSettings().hasCompletedOnboarding());
}

TEST_F(FirstRunTest, TakesAClosedWindowForASkippedOne) {
    launch();
    onboarding()->close();
    EXPECT_TRUE(prompter()->isVisible());
    EXPECT_EQ(localKeys.starts, 1);
    EXPECT_FALSE(savedSettings().hasCompletedOnboarding());
    mainQueue.runAll();
    EXPECT_FALSE(onboarding());
}

TEST_F(FirstRunTest, DropsItsWindowOnlyAfterThatHasCalled) {
    launch();
    onboarding()->onComplete();
    ASSERT_TRUE(onboarding());
    EXPECT_FALSE(onboarding()->isVisible());
    mainQueue.runAll();
    EXPECT_FALSE(onboarding());
}

TEST_F(FirstRunTest, StartsOnceHoweverOftenItsWindowCalls) {
    launch();
    onboarding()->onComplete();
    onboarding()->onSkip();
    EXPECT_EQ(localKeys.starts, 1);
    EXPECT_EQ(activationPolicy.kinds.size(), 2u);
}

TEST_F(FirstRunTest, StartsWithTheClipboardWhateverWasActiveBefore) {
    configure([](PersistedSettings& settings) {
        settings.hasCompletedOnboarding = false;
        settings.activeSourceType = SourceType::obsidian;
        settings.enabledSourceTypes = {SourceType::clipboard, SourceType::obsidian};
    });
    launch();
    onboarding()->onComplete();
    mainQueue.runAll(); // ends the watch over the permission
    EXPECT_EQ(savedSettings().activeSourceType(), SourceType::clipboard);
    EXPECT_EQ(shownSource(), u"CLIPBOARD"_s);
    EXPECT_THAT(timers.liveIntervals(), Not(Contains(1.0))); // nobody reads Obsidian's file
}

TEST_F(FirstRunTest, KeepsAnOpenedTextUntilItIsDone) {
    launch().scripts().open(u"# Opened"_s);
    EXPECT_EQ(keptScript(), QString());
    onboarding()->onComplete();
    EXPECT_EQ(keptScript(), u"# Opened"_s);
}

TEST_F(FirstRunTest, KeepsAnOpenedTextWhenAnEmptyOneFollows) {
    launch().scripts().open(u"# Opened"_s);
    delegate->scripts().open({});
    delegate->scripts().follow(u"/nowhere/empty.md"_s, {});
    onboarding()->onComplete();
    EXPECT_EQ(keptScript(), u"# Opened"_s);
}

TEST_F(FirstRunTest, RevealsTheFirstRunWindow) {
    launch();
    onboarding()->showMinimized();
    delegate->reveal();
    EXPECT_FALSE(onboarding()->isMinimized());
    EXPECT_FALSE(prompter()->isVisible());
    EXPECT_EQ(activationPolicy.activations, 2);
}

} // namespace
} // namespace tessaline
