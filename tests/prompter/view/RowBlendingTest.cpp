#include "prompter/view/RowBlending.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

namespace tessaline {
namespace {

std::vector<int> blended(unsigned lowerWeight) {
    const std::array<std::uint8_t, 4> upper{0, 255, 100, 255};
    const std::array<std::uint8_t, 4> lower{255, 0, 100, 255};
    std::array<std::uint8_t, 4> out{};
    blendRows(upper.data(), lower.data(), lowerWeight, out.data(), out.size());
    return {out.begin(), out.end()};
}

TEST(RowBlending, ShowsOneRowAtWholePositions) {
    EXPECT_EQ(blended(0), (std::vector<int>{0, 255, 100, 255}));
    EXPECT_EQ(blended(wholeRow), (std::vector<int>{255, 0, 100, 255}));
}

TEST(RowBlending, MixesTwoRowsInProportion) {
    EXPECT_EQ(blended(64), (std::vector<int>{64, 191, 100, 255}));
    EXPECT_EQ(blended(128), (std::vector<int>{128, 128, 100, 255}));
}

} // namespace
} // namespace tessaline
