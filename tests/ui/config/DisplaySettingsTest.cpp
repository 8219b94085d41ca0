#include "support/CaseName.h"
#include "support/PrintQt.h"
#include "ui/ConfigWindowFixture.h"
#include "ui/controls/PointSlider.h"

#include <QLabel>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using testing::ElementsAre;

class DisplaySettings : public ConfigWindowFixture {
protected:
    PointSlider& slider(const char* name) { return control<PointSlider>(name); }

    QString label(const char* name) { return control<QLabel>(name).text(); }

    std::vector<std::pair<QString, QString>> recorded() const {
        std::vector<std::pair<QString, QString>> all;
        for (const AnalyticsEvent& event : stage.recorder.events) {
            all.emplace_back(event.properties[u"setting_name"_s],
                             event.properties[u"setting_value"_s]);
        }
        return all;
    }
};

TEST_F(DisplaySettings, StartWithTheSettingsInTheirRanges) {
    stage.settings.setWidth(600.5);
    stage.settings.setHeight(300);
    stage.settings.setFontSize(18);
    stage.settings.setXOffset(-35.9);
    EXPECT_EQ(slider("widthSlider").points(), 600.5);
    EXPECT_EQ(slider("heightSlider").points(), 300);
    EXPECT_EQ(slider("fontSlider").points(), 18);
    EXPECT_EQ(slider("xOffsetSlider").points(), -35.9);
    EXPECT_EQ(label("widthValueLabel"), u"600px"_s);
    EXPECT_EQ(label("heightValueLabel"), u"300px"_s);
    EXPECT_EQ(label("fontValueLabel"), u"18pt"_s);
    EXPECT_EQ(label("xOffsetLabel"), u"-35px left"_s);
    EXPECT_EQ(slider("widthSlider").minimumPoints(), 380);
    EXPECT_EQ(slider("widthSlider").maximumPoints(), 800);
    EXPECT_EQ(slider("heightSlider").minimumPoints(), 100);
    EXPECT_EQ(slider("heightSlider").maximumPoints(), 800);
    EXPECT_EQ(slider("fontSlider").minimumPoints(), 10);
    EXPECT_EQ(slider("fontSlider").maximumPoints(), 30);
    EXPECT_EQ(slider("xOffsetSlider").minimumPoints(), -199.75);
    EXPECT_EQ(slider("xOffsetSlider").maximumPoints(), 199.75);
}

TEST_F(DisplaySettings, SlidersAndPopupsHaveTheirWidthsAndNames) {
    shown();
    for (const char* name : {"widthSlider", "heightSlider", "fontSlider", "xOffsetSlider"})
        EXPECT_EQ(slider(name).width(), 260) << name;
    EXPECT_EQ(control<PopupButton>("config_screenPopup").width(), 180);
    EXPECT_EQ(control<PopupButton>("tickFactorPopup").width(), 120);
    EXPECT_EQ(control<PopupButton>("config_sourcePopup").width(), 140);
    EXPECT_EQ(slider("fontSlider").accessibleName(), u"Font Size"_s);
    EXPECT_EQ(control<PopupButton>("tickFactorPopup").accessibleName(), u"Scroll Speed"_s);
}

TEST_F(DisplaySettings, AreStoredAsTheSlidersReportThemAndSavedAndAnnounced) {
    slider("widthSlider").moveTo(600.4);
    slider("heightSlider").moveTo(301.5);
    slider("fontSlider").moveTo(17.25);
    EXPECT_EQ(stage.settings.width(), 600.4);
    EXPECT_EQ(stage.settings.height(), 301.5);
    EXPECT_EQ(stage.settings.fontSize(), 17.25);
    EXPECT_EQ(settingsChanges, 3);
    const AppSettings saved(stage.configPath);
    EXPECT_EQ(saved.width(), 600.4);
    EXPECT_EQ(saved.height(), 301.5);
    EXPECT_EQ(saved.fontSize(), 17.25);
}

TEST_F(DisplaySettings, AreSavedBeforeTheyAreAnnounced) {
    double savedWidth = 0.0;
    QString shownWidth;
    window().onSettingsChanged = [&] {
        savedWidth = AppSettings(stage.configPath).width();
        shownWidth = label("widthValueLabel");
        EXPECT_TRUE(stage.recorder.events.empty());
    };
    slider("widthSlider").moveTo(700);
    EXPECT_EQ(savedWidth, 700);
    EXPECT_EQ(shownWidth, u"700px"_s);
}

TEST_F(DisplaySettings, EveryChangeRecordsFourEvents) {
    stage.settings.setWidth(600.9);
    slider("fontSlider").moveTo(20.5);
    EXPECT_THAT(recorded(),
                ElementsAre(std::pair(u"width"_s, u"600"_s), std::pair(u"height"_s, u"256"_s),
                            std::pair(u"fontSize"_s, u"20"_s),
                            std::pair(u"scrollRate"_s, u"medium"_s)));
}

TEST_F(DisplaySettings, NeedNobodyToTell) {
    window().onSettingsChanged = nullptr;
    slider("widthSlider").moveTo(700);
    EXPECT_EQ(stage.settings.width(), 700);
}

struct Offset {
    double moved;
    double stored;
    QString label;
};

class OffsetChange : public DisplaySettings, public testing::WithParamInterface<Offset> {};

TEST_P(OffsetChange, TakesTheMiddleNearTheMiddle) {
    slider("xOffsetSlider").setPoints(GetParam().moved > 0 ? -100 : 100);
    slider("xOffsetSlider").moveTo(GetParam().moved);
    EXPECT_EQ(slider("xOffsetSlider").points(), GetParam().stored);
    EXPECT_EQ(stage.settings.xOffset(), GetParam().stored);
    EXPECT_EQ(label("xOffsetLabel"), GetParam().label);
}

INSTANTIATE_TEST_SUITE_P(Offsets, OffsetChange,
                         testing::Values(Offset{15, 0, u"Center"_s}, Offset{-20, 0, u"Center"_s},
                                         Offset{-21, -21, u"-21px left"_s},
                                         Offset{35.9, 35.9, u"+35px right"_s}),
                         byMember<&Offset::label>);

TEST_F(DisplaySettings, AWiderPrompterBringsTheOffsetInAtTheNextChange) {
    stage.settings.setWidth(600);
    stage.settings.setXOffset(150);
    slider("widthSlider").moveTo(800);
    EXPECT_EQ(slider("xOffsetSlider").maximumPoints(), 100);
    EXPECT_EQ(slider("xOffsetSlider").minimumPoints(), -100);
    EXPECT_EQ(slider("xOffsetSlider").points(), 100);
    EXPECT_EQ(stage.settings.xOffset(), 100);
}

TEST_F(DisplaySettings, APrompterWiderThanTheDisplayCannotBeShifted) {
    stage.screens.main->frame.width = 640;
    stage.settings.setWidth(700);
    EXPECT_EQ(slider("xOffsetSlider").minimumPoints(), 0);
    EXPECT_EQ(slider("xOffsetSlider").maximumPoints(), 0);
}

TEST_F(DisplaySettings, WithoutDisplaysTheRangeIsFixed) {
    stage.screens.attached.clear();
    stage.screens.main.reset();
    EXPECT_EQ(slider("xOffsetSlider").maximumPoints(), 500);
    useScreenManager();
    window().refreshUI();
    EXPECT_EQ(slider("xOffsetSlider").maximumPoints(), 500);
}

TEST_F(DisplaySettings, TheRangeComesFromThePreferredDisplayThenTheMainOneThenTheFirst) {
    stage.settings.setWidth(600);
    stage.screens.attached = {Screen{.id = 1, .name = u"A"_s, .frame = {0, 0, 1200, 800}},
                              Screen{.id = 2, .name = u"B"_s, .frame = {1200, 0, 2000, 800}},
                              Screen{.id = 3, .name = u"C"_s, .frame = {3200, 0, 1600, 800}}};
    stage.screens.main = stage.screens.attached[1];
    const PointSlider& position = slider("xOffsetSlider");
    EXPECT_EQ(position.maximumPoints(), 700);
    stage.screens.main.reset();
    window().refreshUI();
    EXPECT_EQ(position.maximumPoints(), 300);
    screenManager.preferredDisplayID = 3;
    useScreenManager();
    window().refreshUI();
    EXPECT_EQ(position.maximumPoints(), 500);
}

struct Rate {
    ScrollRate rate;
    QString title;
    QString recorded;
};

class ScrollRateChoice : public DisplaySettings, public testing::WithParamInterface<Rate> {};

TEST_P(ScrollRateChoice, IsShownAndTakenByTitle) {
    stage.settings.setScrollRate(GetParam().rate);
    auto& popup = control<PopupButton>("tickFactorPopup");
    EXPECT_THAT(titlesOf(popup), ElementsAre(u"Slow"_s, u"Medium"_s, u"Fast"_s));
    EXPECT_EQ(popup.currentText(), GetParam().title);

    stage.settings.setScrollRate(GetParam().rate == ScrollRate::slow ? ScrollRate::fast
                                                                     : ScrollRate::slow);
    choose("tickFactorPopup", popup.findText(GetParam().title));
    EXPECT_EQ(stage.settings.scrollRate(), GetParam().rate);
    EXPECT_EQ(AppSettings(stage.configPath).scrollRate(), GetParam().rate);
    EXPECT_EQ(recorded().back(), std::pair(u"scrollRate"_s, GetParam().recorded));
    EXPECT_EQ(settingsChanges, 1);
}

INSTANTIATE_TEST_SUITE_P(Rates, ScrollRateChoice,
                         testing::Values(Rate{ScrollRate::slow, u"Slow"_s, u"slow"_s},
                                         Rate{ScrollRate::medium, u"Medium"_s, u"medium"_s},
                                         Rate{ScrollRate::fast, u"Fast"_s, u"fast"_s}),
                         byMember<&Rate::title>);

TEST_F(DisplaySettings, WithoutASelectedRateTheRateStays) {
    stage.settings.setScrollRate(ScrollRate::slow);
    control<PopupButton>("tickFactorPopup").setCurrentIndex(-1);
    slider("widthSlider").moveTo(700);
    EXPECT_EQ(stage.settings.scrollRate(), ScrollRate::slow);
}

TEST_F(DisplaySettings, WithoutAScreenManagerOnlyTheAutomaticDisplayIsOffered) {
    EXPECT_THAT(titlesOf(control<PopupButton>("config_screenPopup")), ElementsAre(u"Auto"_s));
    choose("config_screenPopup", 0);
    EXPECT_EQ(settingsChanges, 1);
}

TEST_F(DisplaySettings, ListsTheDisplaysInTheirOrderWithoutUnknownOnes) {
    stage.plugIn(Screen{.id = 0, .name = u"Unknown"_s});
    stage.plugIn(Screen{.id = 0xFFFFFFFF, .name = {}});
    useScreenManager();
    const auto& popup = control<PopupButton>("config_screenPopup");
    EXPECT_THAT(titlesOf(popup), ElementsAre(u"Auto"_s, u"Built-in"_s, u"Display"_s));
    EXPECT_EQ(popup.itemData(0).toUInt(), 0u);
    EXPECT_EQ(popup.itemData(1).toUInt(), 7u);
    EXPECT_EQ(popup.itemData(2).toUInt(), 0xFFFFFFFFu);
    EXPECT_EQ(popup.currentIndex(), 0);
}

TEST_F(DisplaySettings, DisplaysOfTheSameNameAreToldApartByNumber) {
    stage.plugIn(Screen{.id = 8, .name = u"Built-in"_s, .frame = {1000, 0, 1200, 800}});
    stage.settings.setPreferredDisplayID(8);
    useScreenManager();
    const auto& popup = control<PopupButton>("config_screenPopup");
    EXPECT_EQ(popup.itemText(1), popup.itemText(2));
    EXPECT_EQ(popup.currentIndex(), 2);
    choose("config_screenPopup", 1);
    EXPECT_EQ(stage.settings.preferredDisplayID(), 7u);
}

TEST_F(DisplaySettings, ADisplayThatIsAwayShowsAsAutomaticAndStaysPreferred) {
    stage.settings.setPreferredDisplayID(99);
    useScreenManager();
    EXPECT_EQ(control<PopupButton>("config_screenPopup").currentIndex(), 0);
    EXPECT_EQ(stage.settings.preferredDisplayID(), 99u);
}

TEST_F(DisplaySettings, ChoosingADisplayStoresItsNumberAndRecordsItsPlace) {
    stage.plugIn(Screen{.id = 8, .name = u"Big"_s, .frame = {1000, 0, 2000, 800}});
    stage.settings.setWidth(600);
    useScreenManager();
    choose("config_screenPopup", 2);
    EXPECT_EQ(stage.settings.preferredDisplayID(), 8u);
    EXPECT_EQ(screenManager.preferredDisplayID, 8u);
    EXPECT_EQ(AppSettings(stage.configPath).preferredDisplayID(), 8u);
    EXPECT_EQ(slider("xOffsetSlider").maximumPoints(), 700);
    EXPECT_EQ(settingsChanges, 1);
    ASSERT_EQ(stage.recorder.events.size(), 1u);
    EXPECT_EQ(stage.recorder.events[0].name, u"screen_changed"_s);
    EXPECT_EQ(stage.recorder.events[0].properties[u"screen_index"_s], u"2"_s);
}

TEST_F(DisplaySettings, AChosenDisplayIsSavedThenAnnouncedThenRecorded) {
    useScreenManager();
    std::optional<std::uint32_t> savedDisplay;
    window().onSettingsChanged = [&] {
        savedDisplay = AppSettings(stage.configPath).preferredDisplayID();
        EXPECT_TRUE(stage.recorder.events.empty());
    };
    choose("config_screenPopup", 1);
    EXPECT_EQ(savedDisplay, 7u);
    EXPECT_EQ(stage.recorder.events.size(), 1u);
}

TEST_F(DisplaySettings, ChoosingTheAutomaticDisplayClearsThePreferredOne) {
    stage.settings.setPreferredDisplayID(7);
    screenManager.preferredDisplayID = 7;
    useScreenManager();
    choose("config_screenPopup", 0);
    EXPECT_EQ(stage.settings.preferredDisplayID(), std::nullopt);
    EXPECT_EQ(screenManager.preferredDisplayID, std::nullopt);
    ASSERT_EQ(stage.recorder.events.size(), 1u);
    EXPECT_EQ(stage.recorder.events[0].properties[u"screen_index"_s], u"0"_s);
}

TEST_F(DisplaySettings, ALabelFollowsTheOffsetThatASmallerDisplayBringsIn) {
    stage.plugIn(Screen{.id = 8, .name = u"Big"_s, .frame = {1000, 0, 2000, 800}});
    stage.settings.setWidth(600);
    stage.settings.setXOffset(500);
    screenManager.preferredDisplayID = 8;
    stage.settings.setPreferredDisplayID(8);
    useScreenManager();
    window().refreshUI();
    EXPECT_EQ(label("xOffsetLabel"), u"+500px right"_s);
    choose("config_screenPopup", 1);
    EXPECT_EQ(label("xOffsetLabel"), u"+200px right"_s);
    EXPECT_EQ(stage.settings.xOffset(), 500); // until the next change of a slider
}

TEST_F(DisplaySettings, RefreshingShowsTheSettingsWithoutChangingThem) {
    window();
    stage.settings.setWidth(2000);
    stage.settings.setHeight(400);
    stage.settings.setFontSize(25);
    stage.settings.setXOffset(300);
    stage.settings.setScrollRate(ScrollRate::fast);
    window().refreshUI();
    EXPECT_EQ(slider("widthSlider").points(), 800);
    EXPECT_EQ(slider("heightSlider").points(), 400);
    EXPECT_EQ(slider("fontSlider").points(), 25);
    EXPECT_EQ(slider("xOffsetSlider").points(), 0); // wider than the display
    EXPECT_EQ(control<PopupButton>("tickFactorPopup").currentText(), u"Fast"_s);
    EXPECT_EQ(label("heightValueLabel"), u"400px"_s);
    EXPECT_EQ(stage.settings.width(), 2000);
    EXPECT_EQ(stage.settings.xOffset(), 300);
    EXPECT_EQ(settingsChanges, 0);
    EXPECT_TRUE(stage.recorder.events.empty());
}

TEST_F(DisplaySettings, AnArrowKeyMovesTheWidthByOnePoint) {
    stage.settings.setWidth(600);
    QTest::keyClick(&slider("widthSlider"), Qt::Key_Right);
    EXPECT_EQ(stage.settings.width(), 601);
    EXPECT_EQ(label("widthValueLabel"), u"601px"_s);
}

TEST_F(DisplaySettings, AnArrowKeyLeavesTheMiddleAndTheNextOneComesBack) {
    QTest::keyClick(&slider("xOffsetSlider"), Qt::Key_Right);
    EXPECT_EQ(stage.settings.xOffset(), 21);
    QTest::keyClick(&slider("xOffsetSlider"), Qt::Key_Left);
    EXPECT_EQ(stage.settings.xOffset(), 0);
}

} // namespace
} // namespace tessaline
