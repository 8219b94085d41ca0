#include "platform/ScreenCoordinates.h"

#include "support/CaseName.h"
#include "support/PrintRect.h"

#include <gmock/gmock.h>

#include <ostream>
#include <string>

namespace tessaline {
namespace {

struct FlipCase {
    std::string name;
    QRect qt;
    QRect primary;
    Rect ours;
};

void PrintTo(const FlipCase& flip, std::ostream* out) {
    *out << flip.name;
}

class ScreenCoordinates : public ::testing::TestWithParam<FlipCase> {};

TEST_P(ScreenCoordinates, StartAtTheBottomLeftOfThePrimaryScreen) {
    const auto& [name, qt, primary, ours] = GetParam();
    EXPECT_EQ(fromQtCoordinates(qt, primary), ours);
}

TEST_P(ScreenCoordinates, TranslateBack) {
    const auto& [name, qt, primary, ours] = GetParam();
    EXPECT_EQ(toQtCoordinates(ours, primary), qt);
}

constexpr QRect notebook(0, 0, 1512, 982);

INSTANTIATE_TEST_SUITE_P(
    , ScreenCoordinates,
    ::testing::Values(
        FlipCase{"ThePrimaryScreen", notebook, notebook, {0, 0, 1512, 982}},
        FlipCase{"AWindowAtTheTop", {531, 0, 450, 256}, notebook, {531, 726, 450, 256}},
        FlipCase{"BelowAPanel", {0, 32, 1512, 950}, notebook, {0, 0, 1512, 950}},
        FlipCase{"AScreenToTheRight", {1512, 0, 1920, 1080}, notebook, {1512, -98, 1920, 1080}},
        FlipCase{"AScreenAbove", {0, -500, 1000, 500}, notebook, {0, 982, 1000, 500}},
        FlipCase{"LeftOfAPrimaryScreenToTheRight",
                 {0, 0, 1920, 1080},
                 {1920, 100, 1512, 982},
                 {-1920, 2, 1920, 1080}},
        FlipCase{"ThePrimaryScreenToTheRight",
                 {1920, 100, 1512, 982},
                 {1920, 100, 1512, 982},
                 {0, 0, 1512, 982}}),
    byMember<&FlipCase::name>);

TEST(ToQtCoordinates, RoundsTheEdgesSoThatTheTopStaysAtTheTop) {
    EXPECT_EQ(toQtCoordinates({530.5, 726, 451, 256}, notebook), QRect(531, 0, 451, 256));
    EXPECT_EQ(toQtCoordinates({0, 725.6, 100.4, 256.4}, notebook), QRect(0, 0, 100, 256));
}

} // namespace
} // namespace tessaline
