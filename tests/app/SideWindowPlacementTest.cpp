#include "app/SideWindowPlacement.h"

#include "platform/Screen.h"

#include <gtest/gtest.h>

#include <ostream>

namespace tessaline {

static void PrintTo(const SideWindowPlacement& placement, std::ostream* stream) {
    *stream << "left " << placement.left << ", top " << placement.top << ", room " << placement.room
            << (placement.belowPrompter ? ", below" : ", not below");
}

namespace {

constexpr SideWindowSize window{.width = 322, .height = 740, .scrollBar = 10};

Screen screenWithPanels(const Rect& frame, double above = 0, double below = 0) {
    return {.frame = frame,
            .visibleFrame = {frame.x, frame.y + below, frame.width, frame.height - above - below}};
}

/// A prompter that hangs in the middle of the screen, so many points beside it.
Rect prompterOn(const Rect& screen, double width, double height, double offset = 0) {
    return {screen.midX() - width / 2 + offset, screen.maxY() - height, width, height};
}

TEST(SideWindowPlacement, HasItsTopExactlyThePromptersHeightBelowTheScreensTop) {
    const Rect frame{0, 0, 1920, 1080};
    EXPECT_EQ(placeSideWindow(window, screenWithPanels(frame, 30, 40), prompterOn(frame, 450, 256)),
              (SideWindowPlacement{960 - 161, 824, 784, true}));
}

TEST(SideWindowPlacement, StaysInTheMiddleWhereverThePrompterIs) {
    const Rect frame{1920, -200, 1920, 1080};
    EXPECT_EQ(placeSideWindow(window, screenWithPanels(frame), prompterOn(frame, 450, 256.5, 300)),
              (SideWindowPlacement{1920 + 960 - 161, 623.5, 823.5, true}));
}

TEST(SideWindowPlacement, IsBelowAsLongAsThatShowsAllOfIt) {
    const Rect frame{0, 0, 1366, 1000};
    EXPECT_TRUE(placeSideWindow(window, screenWithPanels(frame), prompterOn(frame, 450, 260))
                    .belowPrompter);
    EXPECT_FALSE(placeSideWindow(window, screenWithPanels(frame), prompterOn(frame, 450, 261))
                     .belowPrompter);
}

TEST(SideWindowPlacement, IsBesideAPrompterThatLeavesNoRoomBelow) {
    const Rect frame{0, 0, 1366, 800};
    EXPECT_EQ(placeSideWindow(window, screenWithPanels(frame, 30, 20), prompterOn(frame, 450, 800)),
              (SideWindowPlacement{683 + 225, 770, 750, false}));
}

TEST(SideWindowPlacement, IsOnTheWiderSide) {
    const Rect frame{0, 0, 1366, 800};
    EXPECT_EQ(
        placeSideWindow(window, screenWithPanels(frame), prompterOn(frame, 450, 700, 100)).left,
        683 + 100 - 225 - 322);
}

TEST(SideWindowPlacement, HasItsScrollBarBesideThePrompterToo) {
    const Rect frame{0, 0, 1366, 700};
    EXPECT_EQ(
        placeSideWindow(window, screenWithPanels(frame), prompterOn(frame, 450, 256, 100)).left,
        683 + 100 - 225 - 332);
}

TEST(SideWindowPlacement, LiesOverThePrompterAsLittleAsItCan) {
    const Rect frame{0, 0, 640, 480};
    EXPECT_EQ(placeSideWindow(window, screenWithPanels(frame, 30), prompterOn(frame, 450, 256)),
              (SideWindowPlacement{640 - 332, 450, 450, false}));
    EXPECT_EQ(
        placeSideWindow(window, screenWithPanels(frame, 30), prompterOn(frame, 450, 256, 95)).left,
        0);
}

TEST(SideWindowPlacement, AvoidsAPanelAtTheSide) {
    Screen screen = screenWithPanels({0, 0, 500, 1200});
    screen.visibleFrame.x = 100;
    screen.visibleFrame.width = 400;
    const auto placement = placeSideWindow(window, screen, prompterOn(screen.frame, 450, 256));
    EXPECT_TRUE(placement.belowPrompter);
    EXPECT_EQ(placement.left, 100);
}

} // namespace
} // namespace tessaline
