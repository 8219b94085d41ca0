#include "ui/reading/LookSection.h"

#include "settings/ReadingSettings.h"
#include "ui/controls/PointSlider.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Switch.h"

#include <QAbstractItemView>
#include <QFontDatabase>
#include <QLabel>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

#include <stdexcept>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class LookSectionTest : public testing::Test {
protected:
    LookSectionTest() {
        section.showOptions(options());
        section.show();
    }

    template <typename T>
    T& control(const char* name) {
        T* found = section.findChild<T*>(QString::fromLatin1(name));
        if (!found) throw std::runtime_error(name);
        return *found;
    }

    bool isSeen(const char* name) { return control<QWidget>(name).isVisible(); }
    const ReadingOptions& options() const { return settings.values(); }

    QTemporaryDir folder;
    ReadingSettings settings{folder.filePath(u"reading.json"_s)};
    bool translucency = true;
    bool letsMouseThrough = true;
    int suggestions = 0;
    LookSection section{settings,
                        {[this] { return translucency; }, [this] { return letsMouseThrough; },
                         [this] {
                             ++suggestions;
                             return u"20 minutes of arc: 21 points"_s;
                         }}};
    ReadingSettings::Observation observation =
        settings.observe([this](const ReadingOptions&) { section.showOptions(options()); });
};

TEST_F(LookSectionTest, ShowsTheDefaultsAndChangesNothingByBeingShown) {
    EXPECT_EQ(options(), ReadingOptions());
    EXPECT_EQ(control<PopupButton>("reading_mirrorPopup").currentText(), u"Off"_s);
    EXPECT_EQ(control<QLabel>("reading_opacityValue").text(), u"100 %"_s);
    EXPECT_FALSE(control<Switch>("reading_clickThroughSwitch").isChecked());
    EXPECT_EQ(control<PopupButton>("reading_fontPopup").currentText(), u"Default"_s);
    EXPECT_EQ(control<QLabel>("reading_spacingValue").text(), u"1"_s);
    EXPECT_EQ(control<QLabel>("reading_distanceValue").text(), u"60 cm"_s);
    for (const char* hint :
         {"reading_compositorHint", "reading_fontMissing", "reading_suggestionHint"})
        EXPECT_FALSE(isSeen(hint)) << hint;
}

TEST_F(LookSectionTest, TakesWhatTheKeysChoose) {
    auto& mirror = control<PopupButton>("reading_mirrorPopup");
    QTest::keyClick(&mirror, Qt::Key_Down);
    EXPECT_EQ(options().mirror, Mirroring::horizontal);
    QTest::keyClick(&mirror, Qt::Key_End);
    EXPECT_EQ(options().mirror, Mirroring::both);
    QTest::keyClick(&control<PointSlider>("reading_opacitySlider"), Qt::Key_Left);
    EXPECT_EQ(options().groundOpacity, 0.95);
    QTest::keyClick(&control<PointSlider>("reading_opacitySlider"), Qt::Key_Home);
    EXPECT_EQ(options().groundOpacity, 0.3);
    QTest::keyClick(&control<Switch>("reading_clickThroughSwitch"), Qt::Key_Space);
    EXPECT_TRUE(options().clickThrough);
    QTest::keyClick(&control<PointSlider>("reading_spacingSlider"), Qt::Key_Right);
    EXPECT_EQ(options().lineSpacing, 1.05);
    EXPECT_EQ(control<QLabel>("reading_spacingValue").text(), u"1.05"_s);
    QTest::keyClick(&control<PointSlider>("reading_distanceSlider"), Qt::Key_End);
    EXPECT_EQ(options().readingDistance, 200);
}

TEST_F(LookSectionTest, SaysThatAGroundIsSeenThroughByACompositingManagerOnly) {
    translucency = false;
    section.showOptions(options());
    EXPECT_FALSE(isSeen("reading_compositorHint")) << "nobody wants to see through it";
    settings.change([](ReadingOptions& values) { values.groundOpacity = 0.7; });
    EXPECT_TRUE(isSeen("reading_compositorHint"));
    translucency = true;
    section.showOptions(options());
    EXPECT_FALSE(isSeen("reading_compositorHint"));
}

TEST_F(LookSectionTest, SaysWhereTheMouseCannotGoThrough) {
    letsMouseThrough = false;
    section.showOptions(options());
    EXPECT_FALSE(isSeen("reading_mouseHint"));
    settings.change([](ReadingOptions& values) { values.clickThrough = true; });
    EXPECT_TRUE(isSeen("reading_mouseHint"));
    letsMouseThrough = true;
    section.showOptions(options());
    EXPECT_FALSE(isSeen("reading_mouseHint"));
}

TEST_F(LookSectionTest, OffersTheInstalledFontsByTheirNames) {
    auto& popup = control<PopupButton>("reading_fontPopup");
    const QStringList families = QFontDatabase::families();
    EXPECT_GT(popup.count(), 1);
    for (int item = 1; item < popup.count(); ++item)
        EXPECT_TRUE(families.contains(popup.itemText(item)));

    QString family; // the last one with several words
    for (int item = 1; item < popup.count(); ++item)
        if (popup.itemText(item).contains(u' ')) family = popup.itemText(item);
    ASSERT_FALSE(family.isEmpty());
    popup.setFocus();
    QTest::keyClicks(&popup, family);
    EXPECT_EQ(options().fontFamily, family);
    EXPECT_FALSE(popup.view()->isVisible());
    QTest::keyClick(&popup, Qt::Key_Home);
    EXPECT_EQ(options().fontFamily, std::nullopt);
    EXPECT_TRUE(control<QLabel>("reading_fontHint").text().contains(u"easy reading"_s));
}

TEST_F(LookSectionTest, PopsTheFontsUpByASpaceThatIsInNoName) {
    auto& popup = control<PopupButton>("reading_fontPopup");
    QTest::keyClick(&popup, Qt::Key_Space);
    EXPECT_TRUE(popup.view()->isVisible());
    popup.hidePopup();
}

TEST_F(LookSectionTest, KeepsAFontThatIsGoneAndSaysSo) {
    settings.change([](ReadingOptions& values) { values.fontFamily = u"Gone With It"_s; });
    EXPECT_EQ(control<PopupButton>("reading_fontPopup").currentText(), u"Gone With It"_s);
    EXPECT_TRUE(isSeen("reading_fontMissing"));
    EXPECT_TRUE(control<QLabel>("reading_fontMissing").text().contains(u"“Gone With It”"_s));
    settings.change([](ReadingOptions& values) { values.fontFamily.reset(); });
    EXPECT_FALSE(isSeen("reading_fontMissing"));
    EXPECT_EQ(control<PopupButton>("reading_fontPopup").currentText(), u"Default"_s);
}

TEST_F(LookSectionTest, SaysWhichSizeItSuggestedUntilTheDistanceChanges) {
    QTest::keyClick(&control<QPushButton>("reading_suggestButton"), Qt::Key_Space);
    EXPECT_EQ(suggestions, 1);
    EXPECT_TRUE(isSeen("reading_suggestionHint"));
    EXPECT_EQ(control<QLabel>("reading_suggestionHint").text(), u"20 minutes of arc: 21 points"_s);
    settings.change([](ReadingOptions& values) { values.mirror = Mirroring::both; });
    EXPECT_TRUE(isSeen("reading_suggestionHint"));
    settings.change([](ReadingOptions& values) { values.readingDistance = 80; });
    EXPECT_FALSE(isSeen("reading_suggestionHint"));
}

} // namespace
} // namespace tessaline
