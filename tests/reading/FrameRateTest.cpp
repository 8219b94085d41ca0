#include "reading/FrameRate.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace std::chrono_literals;

TEST(FrameRate, IsZeroWithoutFrames) {
    EXPECT_EQ(FrameRate().framesPerSecond(FrameRate::TimePoint(10s)), 0);
}

TEST(FrameRate, CountsTheFramesOfTheLastSecond) {
    FrameRate rate;
    for (int frame = 1; frame <= 300; ++frame)
        rate.add(FrameRate::TimePoint(frame * 20ms));
    EXPECT_EQ(rate.framesPerSecond(FrameRate::TimePoint(6s)), 50);
    EXPECT_EQ(rate.framesPerSecond(FrameRate::TimePoint(6500ms)), 25);
    EXPECT_EQ(rate.framesPerSecond(FrameRate::TimePoint(8s)), 0);
}

} // namespace
} // namespace tessaline
