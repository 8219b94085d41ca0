#include "appearance/SystemPalette.h"
#include "support/PrintQt.h"
#include "ui/ConfigWindowFixture.h"
#include "ui/SpokenControls.h"
#include "ui/controls/PointSlider.h"
#include "ui/controls/StatusDot.h"
#include "ui/controls/Switch.h"

#include <QApplication>
#include <QFile>
#include <QLabel>

#include <algorithm>
#include <cstdlib>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::IsSupersetOf;
using testing::Not;
using testing::Pair;
using testing::UnorderedElementsAre;

class ConfigWindowTest : public ConfigWindowFixture {
protected:
    StatusDot& dot() { return control<StatusDot>("accessibilityDot"); }
    QPushButton& fixButton() { return control<QPushButton>("accessibilityFixButton"); }

    /// The texts of all labels with one, from top to bottom.
    std::vector<QString> texts() {
        std::vector<std::pair<QPoint, QString>> found;
        for (const QLabel* label : shown().findChildren<QLabel*>()) {
            if (!label->isVisible() || label->text().isEmpty()) continue;
            found.emplace_back(label->mapTo(&window(), QPoint(0, label->height() / 2)),
                               label->text());
        }
        std::stable_sort(found.begin(), found.end(), [](const auto& a, const auto& b) {
            return std::abs(a.first.y() - b.first.y()) > 4 ? a.first.y() < b.first.y()
                                                           : a.first.x() < b.first.x();
        });
        std::vector<QString> all;
        all.reserve(found.size());
        for (const auto& [place, text] : found)
            all.push_back(text);
        return all;
    }
};

TEST_F(ConfigWindowTest, HasItsTitleAndFrame) {
    EXPECT_EQ(window().windowTitle(), u"Settings"_s);
    const auto flags = window().windowFlags();
    EXPECT_TRUE(flags & Qt::WindowTitleHint);
    EXPECT_TRUE(flags & Qt::WindowCloseButtonHint);
    EXPECT_TRUE(flags & Qt::WindowMinimizeButtonHint);
    EXPECT_FALSE(flags & Qt::WindowMaximizeButtonHint);
    EXPECT_EQ(window().minimumSize(), window().maximumSize());
    EXPECT_EQ(shown().grab().toImage().pixelColor(2, 2), QColor(42, 42, 44));
}

TEST_F(ConfigWindowTest, SaysEverythingFromTopToBottom) {
    stage.trust.trusted = true;
    stage.screens.main->frame.width = 1920;
    EXPECT_THAT(texts(), ElementsAreArray({u"Enabled Integrations"_s,
                                           u"📋"_s,
                                           u"Clipboard"_s,
                                           u"📄"_s,
                                           u"Obsidian"_s,
                                           u"Active Source"_s,
                                           u"Display"_s,
                                           u"Screen"_s,
                                           u"Width"_s,
                                           u"450px"_s,
                                           u"Height"_s,
                                           u"256px"_s,
                                           u"Font Size"_s,
                                           u"16pt"_s,
                                           u"Position"_s,
                                           u"Center"_s,
                                           u"Scroll Speed"_s,
                                           u"Shortcuts"_s,
                                           u"Ctrl + V"_s,
                                           u"→"_s,
                                           u"Paste content"_s,
                                           u"Works from any app:"_s,
                                           u"Ctrl + Scroll"_s,
                                           u"→"_s,
                                           u"Scroll up or down"_s,
                                           u"Ctrl + Scroll click"_s,
                                           u"→"_s,
                                           u"Toggle auto-scroll"_s,
                                           u"Ctrl + Two-finger tap"_s,
                                           u"→"_s,
                                           u"Toggle auto-scroll"_s,
                                           u"Shortcuts in Any Application"_s}));
}

TEST_F(ConfigWindowTest, ClipsNothing) {
    stage.screens.main->frame.height = 1600;
    stage.settings.setSourceEnabled(SourceType::obsidian, true);
    stage.settings.setActiveSourceType(SourceType::appleNotes);
    stage.settings.setXOffset(-135.5);
    window().refreshUI();
    shown().fitInto(window().wholeSize().height());
    QTest::qWait(0);
    for (const QWidget* part : window().findChildren<QWidget*>()) {
        const bool isText = qobject_cast<const QLabel*>(part) != nullptr ||
                            qobject_cast<const QAbstractButton*>(part) != nullptr ||
                            qobject_cast<const QComboBox*>(part) != nullptr;
        if (!isText || !part->isVisible()) continue;
        EXPECT_EQ(part->visibleRegion().boundingRect(), part->rect())
            << part->objectName().toStdString();
        EXPECT_GE(part->width(), part->minimumSizeHint().width())
            << part->objectName().toStdString();
        EXPECT_GE(part->height(), part->minimumSizeHint().height())
            << part->objectName().toStdString();
    }
}

TEST_F(ConfigWindowTest, FollowsItsContentsHeight) {
    shown().fitInto(1600);
    const int before = window().height();
    stage.settings.setActiveSourceType(SourceType::appleNotes);
    window().refreshUI();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window().height() >= before + 30; }, 3000));
    stage.settings.setActiveSourceType(SourceType::clipboard);
    window().refreshUI();
    EXPECT_TRUE(QTest::qWaitFor([&] { return window().height() == before; }, 3000));
    EXPECT_EQ(window().width(), 320);
}

TEST_F(ConfigWindowTest, HasItsSizeAsSoonAsItIsRefreshedAlsoWhileItIsHidden) {
    window().fitInto(1600);
    const QSize before = window().size();
    EXPECT_EQ(before.width(), 320);
    stage.settings.setSourceEnabled(SourceType::obsidian, true);
    window().refreshUI();
    const QSize hidden = window().size();
    EXPECT_GT(hidden.height(), before.height());
    shown();
    QTest::qWait(0);
    EXPECT_EQ(window().size(), hidden);
}

TEST_F(ConfigWindowTest, FitsIntoTheRoomThatItIsGiven) {
    window().refreshUI();
    const QSize whole = window().wholeSize();
    window().fitInto(whole.height() - 100);
    EXPECT_EQ(window().size(), whole + QSize(window().scrollBarWidth(), -100));
    window().refreshUI();
    EXPECT_EQ(window().height(), whole.height() - 100);
    EXPECT_EQ(window().wholeSize(), whole) << "wherever it is";
    window().fitInto(whole.height());
    EXPECT_EQ(window().size(), whole);
}

TEST_F(ConfigWindowTest, TellsThatItsSizeMayChangeWhenASliderIsLetGo) {
    int announced = 0;
    window().onSizeChanged = [&] { ++announced; };
    auto& slider = control<PointSlider>("heightSlider");
    EXPECT_FALSE(window().isSliderHeld());
    slider.setSliderDown(true);
    EXPECT_TRUE(window().isSliderHeld());
    slider.moveTo(400);
    EXPECT_EQ(announced, 0);
    slider.setSliderDown(false);
    EXPECT_FALSE(window().isSliderHeld());
    EXPECT_EQ(announced, 1);
    EXPECT_EQ(settingsChanges, 1);
}

TEST_F(ConfigWindowTest, HoldsASliderBeforeAPressOnItsGrooveChangesAnything) {
    auto& slider = control<PointSlider>("heightSlider");
    bool held = false;
    window().onSettingsChanged = [&] { held = window().isSliderHeld(); };
    shown();
    QTest::mousePress(&slider, Qt::LeftButton, {}, QPoint(slider.width() - 20, 10));
    EXPECT_TRUE(held);
    QTest::mouseRelease(&slider, Qt::LeftButton, {}, QPoint(slider.width() - 20, 10));
    EXPECT_FALSE(window().isSliderHeld());
}

TEST_F(ConfigWindowTest, StartsOnNoControlEachTimeItIsShown) {
    stage.installObsidian();
    for (int i = 0; i < 2; ++i) {
        shown().activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
        EXPECT_FALSE(control<Switch>("obsidianToggle").isChecked());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(control<Switch>("obsidianToggle").hasFocus());
        window().close();
    }
}

TEST_F(ConfigWindowTest, TheTabKeyGoesFromTopToBottom) {
    stage.settings.setSourceEnabled(SourceType::obsidian, true);
    shown();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    std::vector<QString> visited;
    for (int i = 0; i < 9; ++i) {
        QTest::keyClick(&window(), Qt::Key_Tab);
        visited.push_back(window().focusWidget()->objectName());
    }
    EXPECT_THAT(visited,
                ElementsAre(u"obsidianToggle"_s, u"obsidianConfigButton"_s, u"config_sourcePopup"_s,
                            u"config_screenPopup"_s, u"widthSlider"_s, u"heightSlider"_s,
                            u"fontSlider"_s, u"xOffsetSlider"_s, u"tickFactorPopup"_s));
}

TEST_F(ConfigWindowTest, EveryControlHasARoleAndANameForScreenReaders) {
    EXPECT_THAT(
        spokenControls(shown()),
        UnorderedElementsAre(
            Pair(QAccessible::CheckBox, u"Clipboard"_s), Pair(QAccessible::CheckBox, u"Obsidian"_s),
            Pair(QAccessible::Button, u"Reinstall Plugin"_s),
            Pair(QAccessible::ComboBox, u"Active Source"_s),
            Pair(QAccessible::Button, u"Browse..."_s),
            Pair(QAccessible::Button, u"Select Note..."_s),
            Pair(QAccessible::ComboBox, u"Screen"_s), Pair(QAccessible::Slider, u"Width"_s),
            Pair(QAccessible::Slider, u"Height"_s), Pair(QAccessible::Slider, u"Font Size"_s),
            Pair(QAccessible::Slider, u"Position"_s),
            Pair(QAccessible::ComboBox, u"Scroll Speed"_s),
            Pair(QAccessible::Button, u"Grant Access for Accessibility"_s)));
}

TEST_F(ConfigWindowTest, EveryButtonsNameHoldsItsText) {
    EXPECT_THAT(buttonsNamedUnlikeTheirText(shown()), IsEmpty());
}

TEST_F(ConfigWindowTest, ShowsThatThePermissionIsMissing) {
    shown();
    EXPECT_EQ(dot().color(), SystemPalette::orange);
    EXPECT_EQ(dot().accessibleName(), u"Not available"_s);
    EXPECT_FALSE(fixButton().isVisible()) << "there is nobody to ask";
    const auto& alternative = control<QLabel>("accessibilityNote");
    EXPECT_TRUE(alternative.isVisible());
    EXPECT_EQ(
        alternative.text(),
        u"Not available on this desktop: in its keyboard settings, bind a key to “tessaline ctl toggle” instead."_s);
    EXPECT_EQ(control<QLabel>("accessibilityLabel").text(), u"Shortcuts in Any Application"_s);
}

TEST_F(ConfigWindowTest, ShowsThatThePermissionIsGranted) {
    stage.trust.trusted = true;
    shown();
    EXPECT_EQ(dot().color(), SystemPalette::green);
    EXPECT_EQ(dot().accessibleName(), u"Available"_s);
    EXPECT_FALSE(fixButton().isVisible());
    EXPECT_FALSE(control<QLabel>("accessibilityNote").isVisible());
    EXPECT_EQ(control<QLabel>("accessibilityLabel").text(), u"Shortcuts in Any Application"_s);
}

TEST_F(ConfigWindowTest, TellsWhatThereIsOfThePermissionBetweenYesAndNo) {
    stage.trust.trusted = true;
    stage.trust.told = {.isWhole = false,
                        .canBeGranted = true,
                        .state = u"Here and there"_s,
                        .note = u"Ask for more"_s,
                        .reachOfGestures = u"Works over some windows:"_s};
    shown();
    EXPECT_EQ(dot().color(), SystemPalette::orange);
    EXPECT_EQ(dot().accessibleName(), u"Here and there"_s);
    EXPECT_TRUE(fixButton().isVisible());
    EXPECT_EQ(control<QLabel>("accessibilityNote").text(), u"Ask for more"_s);
    EXPECT_THAT(texts(), IsSupersetOf({u"Works over some windows:"_s, u"Ctrl + Scroll click"_s}));
    stage.trust.told->gesturesAreSeen = false;
    stage.trust.told->reachOfGestures = u"Works over the prompter:"_s;
    window().refreshUI();
    EXPECT_THAT(texts(), Contains(u"Works over the prompter:"_s));
    EXPECT_THAT(texts(), Contains(u"Ctrl + Scroll"_s));
    EXPECT_THAT(texts(), Not(Contains(u"Ctrl + Scroll click"_s)));
}

TEST_F(ConfigWindowTest, MakesRoomForWhatThereIsToSayOfThePermission) {
    stage.trust.told = {.isWhole = true, .state = u"Here"_s};
    shown().fitInto(1600);
    window().startPeriodicRefresh();
    const int before = window().height();
    stage.trust.told->note = u"A line"_s;
    stage.timers.advance(2.0);
    QTest::qWait(0);
    EXPECT_GT(window().height(), before);
    stage.trust.told->note.clear();
    stage.timers.advance(2.0);
    QTest::qWait(0);
    EXPECT_EQ(window().height(), before);
}

TEST_F(ConfigWindowTest, LooksAtThePermissionWhenItBecomesActive) {
    window();
    stage.trust.trusted = true;
    QEvent activation(QEvent::WindowActivate);
    QCoreApplication::sendEvent(&window(), &activation);
    EXPECT_EQ(dot().color(), SystemPalette::green);
}

TEST_F(ConfigWindowTest, LooksAtThePermissionWhenItIsRefreshed) {
    window();
    stage.trust.trusted = true;
    window().refreshUI();
    EXPECT_EQ(dot().color(), SystemPalette::green);
}

TEST_F(ConfigWindowTest, LooksAfterPluginAndPermissionEveryTwoSeconds) {
    stage.settings.setSourceEnabled(SourceType::obsidian, true);
    stage.installObsidian();
    window().startPeriodicRefresh();
    EXPECT_THAT(stage.timers.liveIntervals(), ElementsAre(2.0));
    stage.obsidian.pluginInstalled = stage.obsidian.pluginEnabled = true;
    stage.trust.trusted = true;
    stage.pass(1.9);
    EXPECT_EQ(dot().color(), SystemPalette::orange);
    stage.pass(0.2);
    EXPECT_EQ(dot().color(), SystemPalette::green);
    EXPECT_EQ(control<QLabel>("obsidianStatusLabel").text(), u"Plugin active"_s);
}

TEST_F(ConfigWindowTest, KeepsOneTimer) {
    window().startPeriodicRefresh();
    window().startPeriodicRefresh();
    EXPECT_THAT(stage.timers.liveIntervals(), ElementsAre(2.0));
}

TEST_F(ConfigWindowTest, StopsLookingWhenItClosesAndCanBeShownAgain) {
    shown().startPeriodicRefresh();
    window().close();
    EXPECT_THAT(stage.timers.liveIntervals(), IsEmpty());
    EXPECT_FALSE(window().isVisible());
    shown().startPeriodicRefresh();
    EXPECT_TRUE(window().isVisible());
    EXPECT_THAT(stage.timers.liveIntervals(), ElementsAre(2.0));
}

TEST_F(ConfigWindowTest, DoesNotPollBeforeItIsAskedTo) {
    shown();
    EXPECT_THAT(stage.timers.liveIntervals(), IsEmpty());
}

TEST_F(ConfigWindowTest, EscapeAndReturnLeaveItOpen) {
    shown();
    QTest::keyClick(&window(), Qt::Key_Escape);
    QTest::keyClick(&window(), Qt::Key_Return);
    EXPECT_TRUE(window().isVisible());
    EXPECT_EQ(stage.trust.prompts, 0);
}

TEST_F(ConfigWindowTest, TheKeysThatCloseWindowsCloseIt) {
    shown();
    window().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window()));
    QTest::keySequence(&window(), QKeySequence::Close);
    EXPECT_FALSE(window().isVisible());
}

TEST_F(ConfigWindowTest, BuildingItChangesAndSavesNothing) {
    const auto before = stage.settings.values();
    QFile::remove(stage.configPath);
    shown();
    EXPECT_EQ(stage.settings.values(), before);
    EXPECT_FALSE(QFile::exists(stage.configPath));
    EXPECT_EQ(settingsChanges, 0);
    EXPECT_TRUE(stage.recorder.events.empty());
}

TEST(ConfigWindowGone, LeavesNoTimerBehind) {
    WindowStage stage;
    auto window =
        std::make_unique<ConfigWindow>(stage.settings, nullptr, stage.platform, stage.services);
    window->startPeriodicRefresh();
    window.reset();
    EXPECT_THAT(stage.timers.liveIntervals(), IsEmpty());
}

} // namespace
} // namespace tessaline
