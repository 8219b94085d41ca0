#include "screens/SizeSuggestion.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

constexpr double capitals = 0.7;

/// A laptop's panel of 15.6 inches with 1920 × 1080 pixels.
ScreenMeasures laptop(double scale = 1.0) {
    return {{344.0, 193.0}, QSizeF(1920, 1080) / scale, scale};
}

TEST(SizeSuggestion, GivesCapitalLettersTwentyMinutesOfArc) {
    // 2 × 600 mm × tan(10′) are 3.49 mm, or 19.5 points on this panel; the font is larger.
    const auto near = SizeSuggestion::of(laptop(), 60, capitals);
    EXPECT_EQ(near.points, 28);
    EXPECT_EQ(near.text(), u"20 minutes of arc at 60 cm on this screen: 28 points"_s);
    EXPECT_EQ(SizeSuggestion::of(laptop(), 40, capitals).points, 19);
    EXPECT_EQ(SizeSuggestion::of(laptop(), 60, 0.8).points, 24);
}

TEST(SizeSuggestion, CountsInPointsOfAScaledScreen) {
    EXPECT_EQ(SizeSuggestion::of(laptop(2.0), 60, capitals).points, 14);
}

TEST(SizeSuggestion, SaysWhenTheLimitsKeptItFromIt) {
    const auto far = SizeSuggestion::of(laptop(), 200, capitals);
    EXPECT_EQ(far.points, 30);
    EXPECT_EQ(far.text(),
              u"20 minutes of arc at 200 cm on this screen: 93 points; 30 are the most"_s);
    const auto wall = SizeSuggestion::of({{1200, 675}, {1600, 900}}, 40, capitals);
    EXPECT_EQ(wall.points, 10);
    EXPECT_EQ(wall.text(),
              u"20 minutes of arc at 40 cm on this screen: 4 points; 10 are the least"_s);
}

struct SilentScreen {
    const char* name;
    ScreenMeasures measures;
};

class ScreenOfNoSize : public testing::TestWithParam<SilentScreen> {};

TEST_P(ScreenOfNoSize, CountsAsOneOfNinetySixDotsPerInch) {
    EXPECT_EQ(GetParam().measures.millimetresPerPoint(), std::nullopt);
    const auto suggestion = SizeSuggestion::of(GetParam().measures, 60, capitals);
    EXPECT_EQ(suggestion.points, 19);
    EXPECT_EQ(suggestion.text(), u"20 minutes of arc at 60 cm on a screen of 96 dots per inch: 19 "
                                 "points (this one does not tell its size)"_s);
}

INSTANTIATE_TEST_SUITE_P(
    Kinds, ScreenOfNoSize,
    testing::Values(SilentScreen{"Nothing", {{0, 0}, {1920, 1080}}},
                    SilentScreen{"NoPixels", {{344, 193}, {0, 0}}},
                    SilentScreen{"ProportionsInMillimetres", {{160, 90}, {1920, 1080}}},
                    SilentScreen{"ProportionsInCentimetres", {{16, 10}, {1920, 1200}}},
                    SilentScreen{"FarTooSmall", {{34, 19}, {1920, 1080}}},
                    SilentScreen{"FarTooLarge", {{34400, 19300}, {1920, 1080}}},
                    SilentScreen{"OfLongPixels", {{344, 344}, {1920, 1080}}}),
    byMember<&SilentScreen::name>);

} // namespace
} // namespace tessaline
