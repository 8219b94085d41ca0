#include "app/ConfigWindowPlacement.h"

#include "platform/Rect.h"
#include "support/PrintRect.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

TEST(ConfigWindowPlacement, PutsTheTopEdgeExactlyThePrompterHeightBelowTheScreensTop) {
    const Rect frame = configWindowFrame({0, 0, 400, 500}, {0, 0, 1512, 982}, 256);
    EXPECT_EQ(frame, (Rect{556, 226, 400, 500}));
    EXPECT_EQ(frame.maxY(), 982 - 256);
}

TEST(ConfigWindowPlacement, CentresOnAScreenThatIsNotThePrimaryOne) {
    EXPECT_EQ(configWindowFrame({7, 7, 400, 300}, {1512, -200, 1000, 800}, 100),
              (Rect{1812, 200, 400, 300}));
}

TEST(ConfigWindowPlacement, KeepsFractions) {
    EXPECT_EQ(configWindowFrame({0, 0, 401, 300}, {0, 0, 1000, 800}, 99.5),
              (Rect{299.5, 400.5, 401, 300}));
}

TEST(ConfigWindowPlacement, LetsTallContentReachBelowTheScreen) {
    EXPECT_EQ(configWindowFrame({0, 0, 400, 700}, {0, 0, 1000, 800}, 200).minY(), -100);
}

} // namespace
} // namespace tessaline
