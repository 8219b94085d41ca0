#include "appearance/SystemPalette.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

TEST(SystemPalette, NamesTheColoursOfTheDarkLook) {
    EXPECT_EQ(SystemPalette::green.rgb(), qRgb(48, 209, 88));
    EXPECT_EQ(SystemPalette::orange.rgb(), qRgb(255, 159, 10));
    EXPECT_EQ(SystemPalette::yellow.rgb(), qRgb(255, 214, 10));
    EXPECT_EQ(SystemPalette::red.rgb(), qRgb(255, 69, 58));
    EXPECT_EQ(SystemPalette::blue.rgb(), qRgb(10, 132, 255));
}

TEST(SystemPalette, AmberKeepsItsFractions) {
    EXPECT_NEAR(SystemPalette::amber().redF(), 0.82, 1e-4);
    EXPECT_NEAR(SystemPalette::amber().greenF(), 0.71, 1e-4);
    EXPECT_NEAR(SystemPalette::amber().blueF(), 0.55, 1e-4);
    EXPECT_EQ(SystemPalette::amber().alpha(), 255);
}

TEST(SystemPalette, ChangesOnlyTheAlphaOfAColour) {
    const QColor faint = SystemPalette::withAlpha(SystemPalette::green, 0.25);

    EXPECT_EQ(faint.rgb(), SystemPalette::green.rgb());
    EXPECT_NEAR(faint.alphaF(), 0.25, 1e-4);
}

} // namespace
} // namespace tessaline
