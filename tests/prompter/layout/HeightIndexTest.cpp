#include "prompter/layout/HeightIndex.h"

#include <gtest/gtest.h>

#include <numeric>
#include <random>

namespace tessaline {
namespace {

TEST(HeightIndex, SumsTheHeightsBeforeAnItem) {
    HeightIndex index;
    index.assign({10, 20, 5});
    EXPECT_EQ(index.topOf(0), 0);
    EXPECT_EQ(index.topOf(1), 10);
    EXPECT_EQ(index.topOf(2), 30);
    EXPECT_EQ(index.topOf(3), 35);
    EXPECT_EQ(index.total(), 35);
}

TEST(HeightIndex, FindsTheItemAtAHeight) {
    HeightIndex index;
    index.assign({10, 20, 5});
    EXPECT_EQ(index.indexAt(0), 0u);
    EXPECT_EQ(index.indexAt(9.9), 0u);
    EXPECT_EQ(index.indexAt(10), 1u);
    EXPECT_EQ(index.indexAt(29.9), 1u);
    EXPECT_EQ(index.indexAt(34), 2u);
}

TEST(HeightIndex, AnswersWithTheFirstAndTheLastItemOutsideOfTheColumn) {
    HeightIndex index;
    index.assign({10, 20, 5});
    EXPECT_EQ(index.indexAt(-7), 0u);
    EXPECT_EQ(index.indexAt(1000), 2u);
}

TEST(HeightIndex, SkipsItemsWithoutHeight) {
    HeightIndex index;
    index.assign({0, 0, 10, 0});
    EXPECT_EQ(index.indexAt(0), 2u);
    EXPECT_EQ(index.indexAt(5), 2u);
}

TEST(HeightIndex, AgreesWithPlainSumsAfterRandomChanges) {
    std::mt19937 random(7);
    std::vector<double> heights(1000);
    for (double& height : heights)
        height = double(random() % 50);
    HeightIndex index;
    index.assign(heights);
    for (int change = 0; change < 2000; ++change) {
        const std::size_t at = random() % heights.size();
        heights[at] = double(random() % 50);
        index.set(at, heights[at]);
        const std::size_t asked = random() % (heights.size() + 1);
        ASSERT_EQ(index.topOf(asked),
                  std::accumulate(heights.begin(), heights.begin() + long(asked), 0.0));
        const std::size_t found = index.indexAt(index.topOf(at) + heights[at] / 2);
        if (heights[at] > 0) {
            ASSERT_EQ(found, at);
        }
    }
}

} // namespace
} // namespace tessaline
