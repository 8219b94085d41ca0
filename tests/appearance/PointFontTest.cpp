#include "appearance/PointFont.h"
#include "support/CaseName.h"

#include <QFontInfo>
#include <QFontMetricsF>
#include <QString>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class PointFontSize : public ::testing::TestWithParam<double> {};

TEST_P(PointFontSize, IsKeptWithItsFraction) {
    EXPECT_NEAR(pointsOf(systemFont(GetParam())), GetParam(), 1e-9);
    EXPECT_NEAR(pointsOf(monospacedFont(GetParam())), GetParam(), 1e-9);
}

TEST_P(PointFontSize, IsDrawnInLogicalPixelsToTheNearestPixelAtLeast) {
    EXPECT_NEAR(drawnPointsOf(systemFont(GetParam())), GetParam(), 0.5);
    EXPECT_NEAR(drawnPointsOf(monospacedFont(GetParam())), GetParam(), 0.5);
}

TEST_P(PointFontSize, IsMeasuredAsItIsDrawn) {
    const auto widthOf = [](const QFont& font) {
        return QFontMetricsF(font).horizontalAdvance(u"Hamburgefonts"_s.repeated(20));
    };
    QFont font = systemFont(GetParam());
    font.setHintingPreference(QFont::PreferNoHinting);
    const double hundredPoints = widthOf(withPoints(font, 100));
    EXPECT_NEAR(widthOf(font) / hundredPoints, drawnPointsOf(font) / 100, 0.001);
}

INSTANTIATE_TEST_SUITE_P(WholeAndFractional, PointFontSize,
                         ::testing::Values(9.0, 11.0, 12.0, 13.6, 16.0, 18.9, 28.0), byValue);

TEST(PointFont, ReadsTheSizeOfAFontThatWasSetInPixels) {
    QFont font;
    font.setPixelSize(17);

    EXPECT_DOUBLE_EQ(pointsOf(font), 17.0);
}

TEST(PointFont, CarriesTheAskedWeight) {
    EXPECT_EQ(systemFont(12.0).weight(), QFont::Normal);
    EXPECT_EQ(systemFont(12.0, QFont::DemiBold).weight(), QFont::DemiBold);
    EXPECT_EQ(monospacedFont(12.0, QFont::Medium).weight(), QFont::Medium);
}

TEST(PointFont, TheMonospacedFontGivesEveryLetterTheSameWidth) {
    const QFontMetricsF metrics(monospacedFont(14.0));

    EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(u"iiii"_s), metrics.horizontalAdvance(u"MMMM"_s));
    EXPECT_NE(QFontInfo(monospacedFont(14.0)).family(), QFontInfo(systemFont(14.0)).family());
    EXPECT_EQ(monospacedFont(14.0).styleHint(), QFont::Monospace) << "where it is missing";
    EXPECT_TRUE(monospacedFont(14.0).fixedPitch());
}

TEST(PointFont, TheMonospacedDigitFontIsTheInterfaceFontWithDigitsOfOneWidth) {
    const QFont font = monospacedDigitFont(13.0, QFont::DemiBold);
    const QFontMetricsF metrics(font);

    EXPECT_EQ(font.family(), systemFont(13.0).family());
    EXPECT_EQ(font.weight(), QFont::DemiBold);
    EXPECT_NEAR(pointsOf(font), 13.0, 1e-9);
    for (char16_t digit = u'1'; digit <= u'9'; ++digit)
        EXPECT_DOUBLE_EQ(metrics.horizontalAdvance(digit), metrics.horizontalAdvance(u'0'));
}

TEST(PointFont, ResizingKeepsTheRestOfTheFont) {
    QFont font = monospacedFont(12.0, QFont::Bold);
    font.setItalic(true);

    const QFont larger = withPoints(font, 18.5);

    EXPECT_EQ(larger.families(), font.families());
    EXPECT_EQ(larger.weight(), QFont::Bold);
    EXPECT_TRUE(larger.italic());
    EXPECT_NEAR(pointsOf(larger), 18.5, 1e-9);
}

} // namespace
} // namespace tessaline
