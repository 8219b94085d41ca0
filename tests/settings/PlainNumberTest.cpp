#include "settings/PlainNumber.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

TEST(PlainNumber, HasNoNeedlessDecimalsAndNoExponent) {
    EXPECT_EQ(plainNumber(16), "16");
    EXPECT_EQ(plainNumber(0), "0");
    EXPECT_EQ(plainNumber(-8), "-8");
    EXPECT_EQ(plainNumber(0.05), "0.05");
    EXPECT_EQ(plainNumber(14.3), "14.3");
    EXPECT_EQ(plainNumber(100000), "100000");
    EXPECT_EQ(plainNumber(12345678901), "12345678901");
}

} // namespace
} // namespace tessaline
