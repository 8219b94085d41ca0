#include "appearance/DarkPalette.h"

#include "appearance/SystemPalette.h"

#include <gtest/gtest.h>

#include <cmath>

namespace tessaline {
namespace {

/// What a colour with an alpha looks like on an opaque one.
QColor over(const QColor& ground, const QColor& color) {
    const auto mixed = [alpha = color.alphaF()](float above, float below) {
        return above * alpha + below * (1 - alpha);
    };
    return QColor::fromRgbF(mixed(color.redF(), ground.redF()),
                            mixed(color.greenF(), ground.greenF()),
                            mixed(color.blueF(), ground.blueF()));
}

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

double contrast(const QColor& ground, const QColor& text) {
    return (luminance(over(ground, text)) + 0.05) / (luminance(ground) + 0.05);
}

struct TextOnGround {
    QPalette::ColorRole text;
    QPalette::ColorRole ground;
};

class DarkPaletteText : public testing::TestWithParam<TextOnGround> {
protected:
    double contrastIn(QPalette::ColorGroup group) const {
        const QPalette palette = darkPalette();
        return contrast(palette.color(group, GetParam().ground),
                        palette.color(group, GetParam().text));
    }
};

TEST_P(DarkPaletteText, WritesInLettersThatAreWellLegible) {
    EXPECT_GT(contrastIn(QPalette::Active), 7.0);
    EXPECT_GT(contrastIn(QPalette::Inactive), 7.0);
}

TEST_P(DarkPaletteText, LetsTheTextOfWhatIsDisabledRecede) {
    EXPECT_LT(contrastIn(QPalette::Disabled), 3.0);
    EXPECT_GT(contrastIn(QPalette::Disabled), 1.5);
}

INSTANTIATE_TEST_SUITE_P(DarkPalette, DarkPaletteText,
                         testing::Values(TextOnGround{QPalette::WindowText, QPalette::Window},
                                         TextOnGround{QPalette::Text, QPalette::Base},
                                         TextOnGround{QPalette::Text, QPalette::AlternateBase},
                                         TextOnGround{QPalette::ButtonText, QPalette::Button},
                                         TextOnGround{QPalette::ToolTipText,
                                                      QPalette::ToolTipBase}));

TEST(DarkPalette, TellsSelectionsAndLinksFromOrdinaryText) {
    const QPalette palette = darkPalette();
    const QColor base = palette.color(QPalette::Base);
    const QColor selection = palette.color(QPalette::Highlight);
    EXPECT_GT(contrast(selection, palette.color(QPalette::HighlightedText)), 3.0);
    EXPECT_GT(contrast(base, selection), 3.0);
    EXPECT_GT(contrast(base, palette.color(QPalette::Link)), 4.5);
}

TEST(DarkPalette, TakesHintsAndStripesFromTheColoursOfTheLook) {
    const QPalette palette = darkPalette();
    EXPECT_EQ(palette.color(QPalette::PlaceholderText), SystemPalette::secondaryLabel);
    EXPECT_EQ(palette.color(QPalette::Base), SystemPalette::controlBackground);
    EXPECT_EQ(palette.color(QPalette::AlternateBase), SystemPalette::windowBackground);
}

} // namespace
} // namespace tessaline
