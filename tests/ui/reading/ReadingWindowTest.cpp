#include "ui/reading/ReadingWindow.h"

#include "settings/ReadingSettings.h"
#include "ui/controls/PointSlider.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Switch.h"

#include <QApplication>
#include <QDoubleSpinBox>
#include <QLabel>
#include <QTemporaryDir>
#include <QTest>
#include <QTimeEdit>
#include <QWheelEvent>

#include <gmock/gmock.h>

#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using ::testing::ElementsAre;

class ReadingWindowTest : public testing::Test {
protected:
    ReadingWindowTest() { window.show(); }

    template <typename T>
    T& control(const char* name) {
        T* found = window.findChild<T*>(QString::fromLatin1(name));
        if (!found) throw std::runtime_error(name);
        return *found;
    }

    /// Chooses an item of a popup by the keys.
    void choose(const char* name, int item) {
        auto& popup = control<PopupButton>(name);
        popup.setFocus();
        QTest::keyClick(&popup, Qt::Key_Home);
        for (int i = 0; i < item; ++i)
            QTest::keyClick(&popup, Qt::Key_Down);
    }

    /// The names of the controls that can be used now, in the order of the Tab key.
    std::vector<std::string> usable() {
        std::vector<std::string> names;
        for (QWidget* next = window.nextInFocusChain(); next != &window;
             next = next->nextInFocusChain()) {
            const bool isOurs = next->objectName().startsWith("reading_"_L1);
            if (isOurs && next->isVisible() && next->focusPolicy() & Qt::TabFocus)
                names.push_back(next->objectName().sliced(8).toStdString());
        }
        return names;
    }

    /// The same down to the section of the look.
    std::vector<std::string> usableAboveTheLook() {
        std::vector<std::string> names = usable();
        names.erase(std::find(names.begin(), names.end(), "mirrorPopup"), names.end());
        return names;
    }

    const ReadingOptions& options() const { return settings.values(); }

    QTemporaryDir folder;
    ReadingSettings settings{folder.filePath(u"reading.json"_s)};
    QTime now{12, 0};
    bool translucency = true;
    int suggestions = 0;
    ReadingWindow window{settings,
                         {[this] { return translucency; }, [] { return true; },
                          [this] {
                              ++suggestions;
                              return u"20 minutes of arc: 21 points"_s;
                          }},
                         {},
                         [this] { return now; }};
};

TEST_F(ReadingWindowTest, ShowsTheDefaultsAndChangesNothingByBeingShown) {
    EXPECT_EQ(options(), ReadingOptions());
    EXPECT_EQ(control<PopupButton>("reading_pacePopup").currentText(), u"Speed"_s);
    EXPECT_EQ(control<PopupButton>("reading_eyeLinePopup").currentText(), u"Second Line"_s);
    EXPECT_EQ(control<PopupButton>("reading_guidePopup").currentText(), u"None"_s);
    EXPECT_EQ(control<QLabel>("reading_countdownValue").text(), u"Off"_s);
    EXPECT_EQ(control<PopupButton>("reading_atEndPopup").currentText(), u"Stand"_s);
    EXPECT_FALSE(control<Switch>("reading_glideSwitch").isChecked());
    EXPECT_FALSE(QFile::exists(folder.filePath(u"reading.json"_s)));
}

TEST_F(ReadingWindowTest, HasTheControlsOfThePaceThatIsOn) {
    EXPECT_THAT(usableAboveTheLook(), ElementsAre("pacePopup", "eyeLinePopup", "guidePopup",
                                                  "countdownSlider", "atEndPopup", "glideSwitch"));
    choose("reading_pacePopup", 1);
    EXPECT_EQ(options(), (ReadingOptions{.pace = PaceMode::words}));
    EXPECT_THAT(usableAboveTheLook(),
                ElementsAre("pacePopup", "wordsSlider", "eyeLinePopup", "guidePopup",
                            "countdownSlider", "atEndPopup", "glideSwitch"));
    choose("reading_pacePopup", 2);
    EXPECT_EQ(options(), (ReadingOptions{.pace = PaceMode::finish}));
    EXPECT_THAT(usableAboveTheLook(),
                ElementsAre("pacePopup", "minutesField", "eyeLinePopup", "guidePopup",
                            "countdownSlider", "atEndPopup", "glideSwitch"));
    choose("reading_pacePopup", 3);
    EXPECT_EQ(options().finishAt, TimeOfDay{12 * 60 + 12});
    EXPECT_THAT(usableAboveTheLook(),
                ElementsAre("pacePopup", "timeField", "eyeLinePopup", "guidePopup",
                            "countdownSlider", "atEndPopup", "glideSwitch"));
    choose("reading_eyeLinePopup", 1);
    EXPECT_EQ(options().eyeLine, 0.33);
    EXPECT_THAT(usableAboveTheLook(),
                ElementsAre("pacePopup", "timeField", "eyeLinePopup", "eyeLineSlider", "guidePopup",
                            "countdownSlider", "atEndPopup", "glideSwitch"));
    choose("reading_pacePopup", 0);
    choose("reading_eyeLinePopup", 0);
    EXPECT_EQ(options().pace, PaceMode::speed);
    EXPECT_EQ(options().eyeLine, std::nullopt);
}

TEST_F(ReadingWindowTest, SavesWhatTheSlidersSay) {
    choose("reading_pacePopup", 1);
    auto& words = control<PointSlider>("reading_wordsSlider");
    QTest::keyClick(&words, Qt::Key_Right);
    EXPECT_EQ(options().wordsPerMinute, 155);
    EXPECT_EQ(control<QLabel>("reading_wordsValue").text(), u"155"_s);
    QTest::keyClick(&words, Qt::Key_End);
    EXPECT_EQ(options().wordsPerMinute, 300);
    QTest::keyClick(&words, Qt::Key_Home);
    EXPECT_EQ(options().wordsPerMinute, 60);

    choose("reading_eyeLinePopup", 1);
    auto& eyeLine = control<PointSlider>("reading_eyeLineSlider");
    QTest::keyClick(&eyeLine, Qt::Key_Left);
    EXPECT_EQ(options().eyeLine, 0.32);
    EXPECT_EQ(control<QLabel>("reading_eyeLineValue").text(), u"32 %"_s);
    QTest::keyClick(&eyeLine, Qt::Key_Home);
    EXPECT_EQ(options().eyeLine, 0.25);

    auto& countdown = control<PointSlider>("reading_countdownSlider");
    QTest::keyClick(&countdown, Qt::Key_Right);
    EXPECT_EQ(options().countdownSeconds, 1);
    EXPECT_EQ(control<QLabel>("reading_countdownValue").text(), u"1 s"_s);
    EXPECT_EQ(ReadingSettings(folder.filePath(u"reading.json"_s)).values(), options());
}

TEST_F(ReadingWindowTest, TakesMinutesOnceTheyAreTyped) {
    choose("reading_pacePopup", 2);
    auto& minutes = control<QDoubleSpinBox>("reading_minutesField");
    minutes.setFocus();
    minutes.selectAll();
    QTest::keyClicks(&minutes, u"45"_s);
    EXPECT_EQ(options().finishMinutes, 12);
    QTest::keyClick(&minutes, Qt::Key_Return);
    EXPECT_EQ(options().finishMinutes, 45);
    QTest::keyClick(&minutes, Qt::Key_Down);
    EXPECT_EQ(options().finishMinutes, 44.5);
    // Others may have chosen a number that the field does not show in full.
    settings.change([](ReadingOptions& values) { values.finishMinutes = 7.25; });
    EXPECT_EQ(options().finishMinutes, 7.25);
}

TEST_F(ReadingWindowTest, TakesATimeAndSaysWhenItMeansTomorrow) {
    choose("reading_pacePopup", 3);
    auto& time = control<QTimeEdit>("reading_timeField");
    auto& tomorrow = control<QLabel>("reading_tomorrowLabel");
    EXPECT_EQ(time.time(), QTime(12, 12));
    EXPECT_FALSE(tomorrow.isVisible());
    time.setFocus();
    time.setSelectedSection(QDateTimeEdit::HourSection);
    QTest::keyClick(&time, Qt::Key_Up);
    EXPECT_EQ(options().finishAt, TimeOfDay{13 * 60 + 12});
    QTest::keyClick(&time, Qt::Key_Down);
    QTest::keyClick(&time, Qt::Key_Down);
    EXPECT_EQ(options().finishAt, TimeOfDay{11 * 60 + 12});
    EXPECT_TRUE(tomorrow.isVisible());
    choose("reading_pacePopup", 2);
    EXPECT_FALSE(tomorrow.isVisible());
    EXPECT_EQ(options().finishAt, std::nullopt);
}

TEST_F(ReadingWindowTest, OffersEveryGuideAndEnd) {
    choose("reading_guidePopup", 1);
    EXPECT_EQ(options(), (ReadingOptions{.guide = ReadingGuide::marker}));
    choose("reading_guidePopup", 3);
    EXPECT_EQ(options(), (ReadingOptions{.guide = ReadingGuide::band, .guideLines = 2}));
    choose("reading_guidePopup", 2);
    EXPECT_EQ(options(), (ReadingOptions{.guide = ReadingGuide::band}));
    choose("reading_guidePopup", 0);
    choose("reading_atEndPopup", 1);
    EXPECT_EQ(options(), (ReadingOptions{.atEnd = ScriptEnd::stop}));
    choose("reading_atEndPopup", 2);
    EXPECT_EQ(options(), (ReadingOptions{.atEnd = ScriptEnd::goRound}));
    QTest::keyClick(&control<Switch>("reading_glideSwitch"), Qt::Key_Space);
    QTest::keyClick(&control<Switch>("reading_mediaKeysSwitch"), Qt::Key_Space);
    EXPECT_TRUE(options().glide);
    EXPECT_TRUE(options().mediaKeys);
}

TEST_F(ReadingWindowTest, ShowsWhatOthersChange) {
    settings.change([](ReadingOptions& values) {
        values = {.pace = PaceMode::finish,
                  .finishAt = TimeOfDay{930},
                  .eyeLine = 0.4,
                  .guide = ReadingGuide::band,
                  .guideLines = 2,
                  .countdownSeconds = 7,
                  .atEnd = ScriptEnd::goRound,
                  .glide = true};
    });
    const ReadingOptions before = options();
    EXPECT_EQ(control<PopupButton>("reading_pacePopup").currentText(), u"Finish at a Time"_s);
    EXPECT_EQ(control<QTimeEdit>("reading_timeField").time(), QTime(15, 30));
    EXPECT_EQ(control<PointSlider>("reading_eyeLineSlider").points(), 40);
    EXPECT_EQ(control<PopupButton>("reading_guidePopup").currentText(), u"Band of Two Lines"_s);
    EXPECT_EQ(control<QLabel>("reading_countdownValue").text(), u"7 s"_s);
    EXPECT_EQ(control<PopupButton>("reading_atEndPopup").currentText(), u"Go Round"_s);
    EXPECT_TRUE(control<Switch>("reading_glideSwitch").isChecked());
    EXPECT_EQ(options(), before);
}

TEST_F(ReadingWindowTest, IsAsHighAsWhatItShows) {
    window.fitInto(5000);
    const int before = window.wholeSize().height();
    int sizes = 0;
    window.onSizeChanged = [&sizes] { ++sizes; };
    choose("reading_pacePopup", 1);
    window.refresh();
    EXPECT_GT(window.wholeSize().height(), before);
    EXPECT_GT(sizes, 0);
    choose("reading_pacePopup", 0);
    window.refresh();
    EXPECT_EQ(window.wholeSize().height(), before);
}

TEST_F(ReadingWindowTest, TellsScreenReadersTheNameOfEveryControl) {
    settings.change([](ReadingOptions& values) { values.eyeLine = 0.3; });
    for (const int pace : {1, 2, 3}) {
        choose("reading_pacePopup", pace);
        std::set<QString> names;
        for (const std::string& name : usable()) {
            auto& widget = control<QWidget>(("reading_" + name).c_str());
            EXPECT_FALSE(widget.accessibleName().isEmpty()) << name;
            EXPECT_TRUE(names.insert(widget.accessibleName()).second) << name;
        }
    }
}

TEST_F(ReadingWindowTest, TurnsNothingByTheWheelThatOnlyPassesOver) {
    choose("reading_pacePopup", 2);
    auto& minutes = control<QDoubleSpinBox>("reading_minutesField");
    const auto turn = [&minutes] {
        QWheelEvent wheel({5, 5}, minutes.mapToGlobal(QPointF(5, 5)), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&minutes, &wheel);
    };
    turn();
    EXPECT_EQ(options().finishMinutes, 12);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    minutes.setFocus();
    turn();
    EXPECT_EQ(options().finishMinutes, 12.5);
}

TEST_F(ReadingWindowTest, IsHiddenByClosing) {
    window.close();
    EXPECT_FALSE(window.isVisible());
    choose("reading_guidePopup", 1);
    window.show();
    EXPECT_EQ(options().guide, ReadingGuide::marker);
}

} // namespace
} // namespace tessaline
