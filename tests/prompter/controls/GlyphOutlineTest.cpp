#include "prompter/controls/GlyphOutline.h"
#include "support/CaseName.h"

#include <QLineF>

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(GlyphOutline, TreatsTheTextPresentationAsTheSameGlyph) {
    const auto plain = glyphOutline(u"\u2699"_s, 16, QFont::Normal, 1);
    const auto asText = glyphOutline(u"\u2699\uFE0E"_s, 16, QFont::Normal, 1);

    ASSERT_TRUE(plain && asText);
    EXPECT_EQ(*plain, *asText);
}

TEST(GlyphOutline, LeavesOtherTextToTheFont) {
    EXPECT_FALSE(glyphOutline(u""_s, 16, QFont::Normal, 1));
    EXPECT_FALSE(glyphOutline(u"\uFE0E"_s, 16, QFont::Normal, 1));
    EXPECT_FALSE(glyphOutline(u"A"_s, 16, QFont::Normal, 1));
    EXPECT_FALSE(glyphOutline(u"\u2699\uFE0F"_s, 16, QFont::Normal, 1));
    EXPECT_FALSE(glyphOutline(u"\u2699\u2699"_s, 16, QFont::Normal, 1));
}

class GlyphOutlineOf : public ::testing::TestWithParam<QString> {};

TEST_P(GlyphOutlineOf, GrowsWithTheSizeAndStaysWithinIt) {
    const auto small = glyphOutline(GetParam(), 12, QFont::Normal, 1);
    const auto large = glyphOutline(GetParam(), 24, QFont::Normal, 1);

    ASSERT_TRUE(small && large);
    EXPECT_NEAR(large->boundingRect().width(), 2 * small->boundingRect().width(), 1e-6);
    EXPECT_LE(small->boundingRect().width(), 12);
    EXPECT_LE(small->boundingRect().height(), 12);
}

INSTANTIATE_TEST_SUITE_P(EveryGlyph, GlyphOutlineOf,
                         ::testing::Values(u"\u2014"_s, u"\u25A1"_s, u"\u2699"_s, u"\u23EF"_s,
                                           u"\U0001F4CB"_s, u"\U0001F4C4"_s),
                         byValue);

/// How often the path of these points enters the outline.
int entries(const QPainterPath& outline, const std::vector<QPointF>& points) {
    int count = 0;
    bool wasInside = outline.contains(points.back());
    for (const QPointF& point : points) {
        const bool isInside = outline.contains(point);
        if (isInside && !wasInside) ++count;
        wasInside = isInside;
    }
    return count;
}

TEST(GlyphOutline, TheGearHasEightTeethAroundAHole) {
    const QPainterPath gear = *glyphOutline(u"\u2699"_s, 100, QFont::Normal, 1);
    const double betweenTipsAndRoots = 0.44 * gear.boundingRect().width();
    std::vector<QPointF> circle;
    for (int degree = 0; degree < 360; ++degree)
        circle.push_back(QLineF::fromPolar(betweenTipsAndRoots, degree).p2());

    EXPECT_EQ(entries(gear, circle), 8);
    EXPECT_FALSE(gear.contains(QPointF()));
    EXPECT_TRUE(gear.contains(QPointF(25, 0)));
}

class GlyphOutlineOfASheet : public ::testing::TestWithParam<QString> {};

TEST_P(GlyphOutlineOfASheet, HasTwoLinesOfTextBetweenItsEdges) {
    const QPainterPath sheet = *glyphOutline(GetParam(), 100, QFont::Normal, 1);
    std::vector<QPointF> downTheMiddle;
    for (int y = -60; y < 60; ++y)
        downTheMiddle.emplace_back(0, y);

    EXPECT_EQ(entries(sheet, downTheMiddle), 4);
}

INSTANTIATE_TEST_SUITE_P(Sheets, GlyphOutlineOfASheet,
                         ::testing::Values(u"\U0001F4CB"_s, u"\U0001F4C4"_s), byValue);

TEST(GlyphOutline, ABolderDashIsThicker) {
    const auto medium = glyphOutline(u"\u2014"_s, 14, QFont::Medium, 4);
    const auto bold = glyphOutline(u"\u2014"_s, 14, QFont::Bold, 4);

    EXPECT_GT(bold->boundingRect().height(), medium->boundingRect().height());
    EXPECT_DOUBLE_EQ(bold->boundingRect().width(), medium->boundingRect().width());
}

TEST(GlyphOutline, StraightStrokesAreWholePixelsAtEveryScale) {
    for (const double pixelRatio : {1.0, 1.25, 1.5, 2.0}) {
        for (const double points : {12.0, 14.0}) {
            const QRectF dash =
                glyphOutline(u"\u2014"_s, points, QFont::Normal, pixelRatio)->boundingRect();
            for (const double length : {dash.width() * pixelRatio, dash.height() * pixelRatio}) {
                EXPECT_NEAR(length, std::round(length), 1e-6) << points << ' ' << pixelRatio;
                EXPECT_GE(length, 1 - 1e-6);
            }
        }
    }
}

} // namespace
} // namespace tessaline
