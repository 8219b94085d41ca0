#include "appearance/DarkPalette.h"

#include "appearance/SystemPalette.h"
#include "support/CaseName.h"
#include "support/Contrast.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

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
                                                      QPalette::ToolTipBase}),
                         byMember<&TextOnGround::text>);

TEST(DarkPalette, TellsSelectionsAndLinksFromOrdinaryText) {
    const QPalette palette = darkPalette();
    const QColor base = palette.color(QPalette::Base);
    const QColor selection = palette.color(QPalette::Highlight);
    EXPECT_GT(contrast(selection, palette.color(QPalette::HighlightedText)), 4.5);
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
