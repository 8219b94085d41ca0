#include "appearance/SystemPalette.h"
#include "support/CaseName.h"
#include "support/Part.h"
#include "support/PrintQt.h"
#include "ui/OnboardingWindowFixture.h"
#include "ui/SpokenControls.h"
#include "ui/TextType.h"
#include "ui/controls/StatusDot.h"

#include <QScreen>

#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;
using testing::UnorderedElementsAre;

class OnboardingWindowTest : public OnboardingWindowFixture {
protected:
    /// The label that reads so.
    QLabel& label(const QString& text) { return labelReading(window(), text); }
};

TEST_F(OnboardingWindowTest, StartsAfreshWithTheClipboardAndSavesThat) {
    stage.settings.setSourceEnabled(SourceType::obsidian, true);
    stage.settings.setActiveSourceType(SourceType::obsidian);
    window();
    EXPECT_THAT(stage.settings.enabledSourceTypes(), ElementsAre(SourceType::clipboard));
    EXPECT_EQ(stage.settings.activeSourceType(), SourceType::clipboard);
    const AppSettings saved(stage.configPath);
    EXPECT_THAT(saved.enabledSourceTypes(), ElementsAre(SourceType::clipboard));
    EXPECT_EQ(saved.activeSourceType(), SourceType::clipboard);
}

TEST_F(OnboardingWindowTest, ClearsAStaleEntryAndDoesNotMindFailure) {
    stage.processes.result = {.exitCode = -1};
    window();
    EXPECT_THAT(
        stage.processes.calls,
        ElementsAre(FakeProcessRunner::Call{
            u"/usr/bin/tccutil"_s, {u"reset"_s, u"Accessibility"_s, u"app.example.Program"_s}}));
    EXPECT_EQ(stage.trust.prompts, 0);
}

TEST_F(OnboardingWindowTest, StartsAfreshBeforeItClearsAStaleEntry) {
    stage.settings.setActiveSourceType(SourceType::obsidian);
    stage.settings.change([](auto& values) { values.enabledSourceTypes = {SourceType::obsidian}; });
    sourceManager = stage.makeSourceManager();
    std::vector<std::size_t> callsBefore;
    const auto observation = stage.notifications.observe(
        SourceManager::activeSourceDidChangeNotification(),
        [&](const Notification&) { callsBefore.push_back(stage.processes.calls.size()); });
    window();
    EXPECT_THAT(callsBefore, ElementsAre(0U));
    EXPECT_EQ(stage.processes.calls.size(), 1U);
}

TEST_F(OnboardingWindowTest, LeavesAGrantedPermissionAlone) {
    stage.trust.trusted = true;
    window();
    EXPECT_THAT(stage.processes.calls, IsEmpty());
}

TEST_F(OnboardingWindowTest, CannotClearAnEntryWithoutAnIdentifier) {
    stage.bundle.bundleIdentifier.reset();
    window();
    EXPECT_THAT(stage.processes.calls, IsEmpty());
}

TEST_F(OnboardingWindowTest, HasItsTextsAndSize) {
    stage.trust.trusted = true;
    shown();
    EXPECT_EQ(window().windowTitle(), u"Welcome to Tessaline"_s);
    EXPECT_EQ(window().findChild<QLabel*>(u"onboarding_title"_s)->text(),
              u"Welcome to Tessaline"_s);
    EXPECT_EQ(
        window().findChild<QLabel*>(u"onboarding_subtitle"_s)->text(),
        u"Turn the top of your screen into a teleprompter. Read scripts, notes, or any text right below your camera."_s);
    EXPECT_EQ(part<QLabel>(permission(), "titleLabel")->text(), u"Shortcuts in Any Application"_s);
    EXPECT_EQ(
        part<QLabel>(permission(), "descriptionLabel")->text(),
        u"Lets you pause/resume auto-scroll and scroll through text even when Tessaline is not focused."_s);
    EXPECT_EQ(continueButton().text(), u"Get Started"_s);
    EXPECT_GE(continueButton().width(), 120);
    EXPECT_EQ(window().size(), QSize(520, 520));
    EXPECT_FALSE(window().windowFlags() & Qt::WindowMinimizeButtonHint);
    EXPECT_TRUE(window().windowFlags() & Qt::WindowCloseButtonHint);
}

TEST_F(OnboardingWindowTest, StandsInTheMiddleOfTheScreen) {
    stage.screens.main->visibleFrame = {100, 0, 800, 740};
    const QRect frame = window().frameGeometry();
    const int below = window().screen()->geometry().height() - frame.bottom() - 1;
    EXPECT_NEAR(frame.center().x(), 500, 2);
    EXPECT_EQ(below, (740 - 520 - 40) / 2 + 40) << "a title bar takes so much above";
}

TEST_F(OnboardingWindowTest, ShowsItsButtonOnAScreenThatIsTooLowForTheRest) {
    stage.screens.main->visibleFrame = {0, 30, 640, 450};
    shown();
    EXPECT_EQ(window().height(), 450 - 40);
    EXPECT_EQ(continueButton().visibleRegion().boundingRect(), continueButton().rect());
}

TEST_F(OnboardingWindowTest, KeepsItsDistances) {
    shown();
    const auto bounds = [this](const QWidget* part) {
        return QRect(part->mapTo(&window(), QPoint(0, 0)), part->size());
    };
    const QRect title = bounds(window().findChild<QLabel*>(u"onboarding_title"_s));
    const auto& subtitleLabel = *window().findChild<QLabel*>(u"onboarding_subtitle"_s);
    const QRect subtitle = bounds(&subtitleLabel);
    const QRect clipboard = bounds(&row("clipboardToggleView"));
    const QRect second = bounds(&obsidian());
    const QRect button = bounds(&continueButton());
    const QRect permissions = bounds(&label(u"Optional Permissions"_s));
    const QRect sources = bounds(&label(u"Content Sources"_s));
    EXPECT_EQ(title.top(), 30);
    EXPECT_NEAR(title.center().x(), 260, 1);
    EXPECT_EQ(subtitle.top(), title.bottom() + 1 + 10);
    EXPECT_EQ(subtitle.left() + subtitleLabel.contentsRect().left(), 40);
    EXPECT_EQ(subtitleLabel.contentsRect().width(), 440);
    EXPECT_EQ(permissions.top(), subtitle.bottom() + 1 + 20);
    EXPECT_EQ(permissions.left(), 30);
    EXPECT_EQ(bounds(&permission()).top(), permissions.bottom() + 1 + 8);
    EXPECT_EQ(sources.top(), bounds(&permission()).bottom() + 1 + 20);
    EXPECT_EQ(clipboard.top(), sources.bottom() + 1 + 8);
    EXPECT_EQ(bounds(&permission()).left(), 30);
    EXPECT_EQ(bounds(&permission()).width(), 460);
    EXPECT_EQ(clipboard.height(), 60);
    EXPECT_EQ(second.top(), clipboard.bottom() + 1 + 8);
    EXPECT_EQ(button.top(), second.bottom() + 1 + 20);
    EXPECT_NEAR(button.center().x(), 260, 1);
    EXPECT_GE(window().height() - button.bottom() - 1, 20);
}

TEST_F(OnboardingWindowTest, SetsItsTextsInTheirSizesAndWeights) {
    stage.installObsidian();
    EXPECT_EQ(typeOf(*window().findChild<QLabel*>(u"onboarding_title"_s)),
              TextType(24, QFont::Bold));
    EXPECT_EQ(typeOf(label(u"Optional Permissions"_s)), TextType(12, QFont::DemiBold));
    EXPECT_EQ(typeOf(label(u"Content Sources"_s)), TextType(12, QFont::DemiBold));
    EXPECT_EQ(typeOf(*part<QLabel>(permission(), "titleLabel")), TextType(14, QFont::DemiBold));
    EXPECT_EQ(typeOf(*part<QLabel>(permission(), "descriptionLabel")), TextType(12, QFont::Normal));
    EXPECT_EQ(typeOf(*part<QLabel>(obsidian(), "titleLabel")), TextType(14, QFont::DemiBold));
    EXPECT_EQ(typeOf(*part<QLabel>(obsidian(), "statusLabel")), TextType(11, QFont::Normal));
    EXPECT_EQ(typeOf(*part<QLabel>(obsidian(), "iconLabel")), TextType(20, QFont::Normal));
    EXPECT_EQ(part<StatusDot>(permission(), "statusIndicator")->size(), QSize(12, 12));
    EXPECT_GE(part<QPushButton>(permission(), "grantButton")->minimumWidth(), 100);
    EXPECT_EQ(part<QLabel>(obsidian(), "iconLabel")->width(), 24);
}

TEST_F(OnboardingWindowTest, EveryControlHasARoleAndANameForScreenReaders) {
    EXPECT_THAT(spokenControls(shown()),
                UnorderedElementsAre(Pair(QAccessible::Button, u"Grant Access"_s),
                                     Pair(QAccessible::CheckBox, u"Clipboard"_s),
                                     Pair(QAccessible::CheckBox, u"Obsidian"_s),
                                     Pair(QAccessible::Button, u"Get Started"_s)));
}

TEST_F(OnboardingWindowTest, EveryButtonsNameHoldsItsText) {
    EXPECT_THAT(buttonsNamedUnlikeTheirText(shown()), IsEmpty());
}

TEST_F(OnboardingWindowTest, OffersTheClipboardForGoodAndNoAppleNotes) {
    const auto& clipboard = row("clipboardToggleView");
    EXPECT_EQ(part<QLabel>(clipboard, "statusLabel")->text(), u"Default — paste any text"_s);
    EXPECT_TRUE(part<Switch>(clipboard, "toggleSwitch")->isChecked());
    EXPECT_FALSE(part<Switch>(clipboard, "toggleSwitch")->isEnabled());
    EXPECT_EQ(part<QLabel>(clipboard, "iconLabel")->text(), u"📋"_s);
    EXPECT_EQ(window().findChildren<IntegrationToggleView*>().size(), 2);
}

TEST_F(OnboardingWindowTest, SaysWhatToDoWhereShortcutsAreOutOfReach) {
    shown();
    EXPECT_EQ(
        part<QLabel>(permission(), "descriptionLabel")->text(),
        u"Lets you pause/resume auto-scroll and scroll through text even when Tessaline is not focused.\nNot available on this desktop: in its keyboard settings, bind a key to “tessaline ctl toggle” instead."_s);
    EXPECT_FALSE(part<QPushButton>(permission(), "grantButton")->isVisible())
        << "there is nobody to ask";
    EXPECT_EQ(window().size(), QSize(520, 520));
}

TEST_F(OnboardingWindowTest, NoticesTheGrantWithinASecond) {
    shown();
    EXPECT_EQ(part<StatusDot>(permission(), "statusIndicator")->color(), SystemPalette::orange);
    EXPECT_THAT(stage.timers.liveIntervals(), ElementsAre(1.0));
    stage.trust.trusted = true;
    stage.pass(1.0);
    EXPECT_EQ(part<StatusDot>(permission(), "statusIndicator")->color(), SystemPalette::green);
    EXPECT_EQ(part<QPushButton>(permission(), "grantButton")->text(), u"Available ✓"_s);
    EXPECT_FALSE(part<QPushButton>(permission(), "grantButton")->isEnabled());
}

TEST_F(OnboardingWindowTest, FollowsWhatThereIsOfThePermissionBetweenYesAndNo) {
    stage.trust.told = {.isWhole = false, .state = u"Not yet"_s};
    const auto& note = *part<QLabel>(permission(), "descriptionLabel");
    const QString before = note.text();
    stage.trust.told->canBeGranted = true;
    stage.trust.told->note = u"Somebody can be asked"_s;
    stage.timers.advance(1.0);
    EXPECT_EQ(note.text(), before + u"\nSomebody can be asked"_s);
    EXPECT_FALSE(part<QPushButton>(permission(), "grantButton")->isHidden());
}

TEST_F(OnboardingWindowTest, NoticesTheGrantWhenItBecomesActive) {
    window();
    stage.trust.trusted = true;
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&window(), &activation);
    EXPECT_EQ(part<StatusDot>(permission(), "statusIndicator")->color(), SystemPalette::green);
}

TEST_F(OnboardingWindowTest, HearsOfChangesFromAnySender) {
    window();
    stage.trust.trusted = true;
    stage.notifications.post(
        {PermissionManager::permissionStatusDidChangeNotification(), &stage, {}});
    EXPECT_EQ(part<StatusDot>(permission(), "statusIndicator")->color(), SystemPalette::green);
}

TEST_F(OnboardingWindowTest, FinishingSavesRecordsCallsAndCloses) {
    stage.trust.trusted = true;
    shown();
    window().onComplete = [this] {
        ++completions;
        EXPECT_TRUE(AppSettings(stage.configPath).hasCompletedOnboarding());
        EXPECT_THAT(stage.timers.liveIntervals(), IsEmpty());
        EXPECT_THAT(stage.recorder.names(), ElementsAre(u"onboarding_completed"_s));
        EXPECT_TRUE(window().isVisible());
    };
    QTest::mouseClick(&continueButton(), Qt::LeftButton);
    EXPECT_EQ(completions, 1);
    EXPECT_EQ(closings, 0);
    EXPECT_FALSE(window().isVisible());
    EXPECT_EQ(stage.recorder.events[0].properties,
              (QMap<QString, QString>{{u"accessibility_granted"_s, u"true"_s},
                                      {u"obsidian_enabled"_s, u"false"_s}}));
    continueButton().click();
    EXPECT_EQ(completions, 1);
    EXPECT_EQ(stage.recorder.events.size(), 1u);
}

class FinishingKey : public OnboardingWindowTest, public testing::WithParamInterface<Qt::Key> {};

TEST_P(FinishingKey, PressesGetStartedWhereverTheFocusIs) {
    stage.installObsidian();
    shown();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    part<Switch>(obsidian(), "toggleSwitch")->setFocus();
    QTest::keyClick(part<Switch>(obsidian(), "toggleSwitch"), GetParam());
    EXPECT_EQ(completions, 1);
    EXPECT_FALSE(obsidianEnabled());
}

INSTANTIATE_TEST_SUITE_P(Keys, FinishingKey, testing::Values(Qt::Key_Return, Qt::Key_Enter),
                         byValue);

TEST_F(OnboardingWindowTest, TheTabKeyGoesFromTopToBottom) {
    stage.installObsidian();
    shown();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    std::vector<QWidget*> visited;
    EXPECT_TRUE(continueButton().hasFocus());
    for (int i = 0; i < 2; ++i) {
        QTest::keyClick(&window(), Qt::Key_Tab);
        visited.push_back(window().focusWidget());
    }
    EXPECT_THAT(visited, ElementsAre(part<Switch>(obsidian(), "toggleSwitch"), &continueButton()));
}

TEST_F(OnboardingWindowTest, NeedsNobodyToTell) {
    shown();
    window().onComplete = nullptr;
    continueButton().click();
    EXPECT_TRUE(stage.settings.hasCompletedOnboarding());
    EXPECT_FALSE(window().isVisible());
}

TEST_F(OnboardingWindowTest, ClosingWithoutFinishingIsToldOnceAndCallsNobody) {
    shown();
    window().onSkip = [] { ADD_FAILURE() << "that is for the owner to decide"; };
    window().close();
    EXPECT_EQ(closings, 1);
    EXPECT_EQ(completions, 0);
    EXPECT_FALSE(window().isVisible());
    EXPECT_FALSE(AppSettings(stage.configPath).hasCompletedOnboarding());
    shown().close();
    EXPECT_EQ(closings, 1);
}

TEST_F(OnboardingWindowTest, EscapeLeavesItOpen) {
    QTest::keyClick(&shown(), Qt::Key_Escape);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(closings, 0);
}

TEST_F(OnboardingWindowTest, MayBeDroppedByWhoeverHearsThatItIsComplete) {
    shown();
    window().onComplete = [this] {
        ++completions;
        built.reset();
    };
    continueButton().click();
    EXPECT_EQ(completions, 1);
    EXPECT_FALSE(built);
}

TEST_F(OnboardingWindowTest, MayBeDroppedByWhoeverHearsThatItIsClosed) {
    QObject::connect(&shown(), &OnboardingWindow::closedUnfinished, [this] { built.reset(); });
    built->close();
    EXPECT_EQ(closings, 1);
    EXPECT_FALSE(built);
}

TEST_F(OnboardingWindowTest, StopsPollingAndListeningWhenItGoes) {
    window();
    built.reset();
    EXPECT_THAT(stage.timers.liveIntervals(), IsEmpty());
    stage.notifications.post(
        {PermissionManager::permissionStatusDidChangeNotification(), &manager, {}});
}

class WholeTexts : public OnboardingWindowTest, public testing::WithParamInterface<bool> {};

TEST_P(WholeTexts, AreSeen) {
    stage.trust.trusted = GetParam();
    stage.installObsidian();
    shown();
    QTest::qWait(0);
    for (const QLabel* label : window().findChildren<QLabel*>()) {
        EXPECT_GE(label->height(), label->wordWrap() ? label->heightForWidth(label->width())
                                                     : label->sizeHint().height())
            << label->text().toStdString();
        EXPECT_EQ(label->visibleRegion().boundingRect(), label->rect())
            << label->text().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(WithAndWithoutShortcuts, WholeTexts, testing::Bool(), byValue);

} // namespace
} // namespace tessaline
