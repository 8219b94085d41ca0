#include "prompter/SourceIcon.h"

#include "support/CaseName.h"
#include "support/WidgetPicture.h"

#include <QPixmap>

#include <gtest/gtest.h>

#include <algorithm>
#include <map>

namespace tessaline {
namespace {

QImage iconOf(SourceType source, int side) {
    return sourceIcon(source).pixmap(side, side).toImage();
}

class SourceIcon : public testing::TestWithParam<SourceType> {};

TEST_P(SourceIcon, FillsWhateverSizeIsAskedFor) {
    const QRectF small = inkOf(iconOf(GetParam(), 48));
    const QRectF large = inkOf(iconOf(GetParam(), 96));
    EXPECT_GT(small.height(), 0.75 * 48);
    EXPECT_GT(small.width(), 0.6 * 48);
    EXPECT_NEAR(large.height(), 2 * small.height(), 2);
    EXPECT_NEAR(large.width(), 2 * small.width(), 2);
}

TEST_P(SourceIcon, IsDrawnInTheColourOfItsSource) {
    const QImage picture = iconOf(GetParam(), 48);
    const auto isOpaque = [&](int x, int y) { return qAlpha(picture.pixel(x, y)) == 255; };
    const QRgb color = sourceColor(GetParam()).rgb();
    const auto isOfAnotherColour = [&](int x, int y) {
        return isOpaque(x, y) && picture.pixel(x, y) != color;
    };
    EXPECT_FALSE(boundsOf(picture, isOpaque).isEmpty());
    EXPECT_TRUE(boundsOf(picture, isOfAnotherColour).isEmpty());
}

INSTANTIATE_TEST_SUITE_P(EverySource, SourceIcon,
                         testing::Values(SourceType::obsidian, SourceType::appleNotes,
                                         SourceType::clipboard),
                         byValue);

TEST(SourceIcons, OfSheetsHaveTheirEdgesBetweenPixels) {
    for (const SourceType source : {SourceType::appleNotes, SourceType::clipboard}) {
        for (const int side : {12, 15, 18, 24}) {
            const QImage picture = iconOf(source, side);
            for (int i = 0; i < side; ++i) {
                const int alpha = qAlpha(picture.pixel(i, side * 2 / 3));
                EXPECT_TRUE(alpha == 0 || alpha == 255) << side << ", column " << i;
                const int below = qAlpha(picture.pixel(side / 2, i));
                EXPECT_TRUE(below == 0 || below == 255) << side << ", row " << i;
            }
        }
    }
}

TEST(SourceIcons, ShadeTheFacetsOfTheStoneAlsoOnFewPixels) {
    const QImage picture = iconOf(SourceType::obsidian, 12);
    std::map<int, int> pixelsOfShade;
    for (int y = 0; y < 12; ++y) {
        for (int x = 0; x < 12; ++x)
            ++pixelsOfShade[qAlpha(picture.pixel(x, y))];
    }
    pixelsOfShade.erase(0);
    const auto facets =
        std::ranges::count_if(pixelsOfShade, [](const auto& shade) { return shade.second >= 4; });
    EXPECT_GE(facets, 3);
}

TEST(SourceIcons, TellTheSourcesApartByTheirShape) {
    const auto shapeOf = [](SourceType source) {
        return iconOf(source, 48).convertToFormat(QImage::Format_Alpha8);
    };
    EXPECT_NE(shapeOf(SourceType::obsidian), shapeOf(SourceType::appleNotes));
    EXPECT_NE(shapeOf(SourceType::obsidian), shapeOf(SourceType::clipboard));
    EXPECT_NE(shapeOf(SourceType::clipboard), shapeOf(SourceType::appleNotes));
}

} // namespace
} // namespace tessaline
