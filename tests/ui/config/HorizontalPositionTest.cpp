#include "ui/config/HorizontalPosition.h"

#include "support/CaseName.h"
#include "support/PrintQt.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(HorizontalPosition, ReachesToEitherEdgeOfTheDisplayAndNoFarther) {
    EXPECT_EQ(HorizontalPosition::maximumOffset(1000, 800), 100.0);
    EXPECT_EQ(HorizontalPosition::maximumOffset(1001, 800), 100.5);
}

TEST(HorizontalPosition, IsEmptyForAPrompterAsWideAsTheDisplayOrWider) {
    EXPECT_EQ(HorizontalPosition::maximumOffset(800, 800), 0.0);
    EXPECT_EQ(HorizontalPosition::maximumOffset(640, 800), 0.0);
}

TEST(HorizontalPosition, IsFixedWithoutADisplay) {
    EXPECT_EQ(HorizontalPosition::maximumOffset(std::nullopt, 800), 500.0);
}

struct Snap {
    double offset;
    double snapped;
};

class PositionSnapping : public testing::TestWithParam<Snap> {};

TEST_P(PositionSnapping, TakesTheMiddleForSmallOffsetsOnly) {
    EXPECT_EQ(HorizontalPosition::snapped(GetParam().offset), GetParam().snapped);
}

INSTANTIATE_TEST_SUITE_P(Offsets, PositionSnapping,
                         testing::Values(Snap{0, 0}, Snap{15, 0}, Snap{20, 0}, Snap{-20, 0},
                                         Snap{20.25, 20.25}, Snap{-21, -21}, Snap{300, 300}),
                         byMember<&Snap::offset>);

struct Words {
    double offset;
    QString text;
};

class PositionText : public testing::TestWithParam<Words> {};

TEST_P(PositionText, TellsTheWholePointsAndTheDirectionTwice) {
    EXPECT_EQ(HorizontalPosition::text(GetParam().offset), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(Offsets, PositionText,
                         testing::Values(Words{0, u"Center"_s}, Words{0.9, u"Center"_s},
                                         Words{-0.9, u"Center"_s}, Words{35, u"+35px right"_s},
                                         Words{35.9, u"+35px right"_s}, Words{-35, u"-35px left"_s},
                                         Words{-35.9, u"-35px left"_s}),
                         byMember<&Words::text>);

TEST(HorizontalPosition, CutsTheFractionOffAValue) {
    EXPECT_EQ(lengthText(600, u"px"_s), u"600px"_s);
    EXPECT_EQ(lengthText(18.99, u"pt"_s), u"18pt"_s);
}

} // namespace
} // namespace tessaline
