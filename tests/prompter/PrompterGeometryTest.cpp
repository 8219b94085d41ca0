#include "prompter/PrompterGeometry.h"

#include "platform/Screen.h"
#include "support/CaseName.h"
#include "support/PrintRect.h"

#include <gmock/gmock.h>

#include <ostream>
#include <string>

namespace tessaline {
namespace {

constexpr Rect notebookFrame{0, 0, 1512, 982};

struct PlacementCase {
    std::string name;
    PrompterPlacement placement;
    Rect screen;
    Rect expected;
};

void PrintTo(const PlacementCase& placement, std::ostream* out) {
    *out << placement.name;
}

class PrompterFrame : public ::testing::TestWithParam<PlacementCase> {};

TEST_P(PrompterFrame, HangsFromTheTopWithinTheSidesOfTheScreen) {
    const auto& [name, placement, screen, expected] = GetParam();
    EXPECT_EQ(prompterFrame(placement, screen), expected);
}

INSTANTIATE_TEST_SUITE_P(
    , PrompterFrame,
    ::testing::Values(
        PlacementCase{"Centred", {450, 256, 0}, notebookFrame, {531, 726, 450, 256}},
        PlacementCase{"OffsetToTheRight", {450, 256, 100}, notebookFrame, {631, 726, 450, 256}},
        PlacementCase{"HeldAtTheRightEdge", {450, 256, 2000}, notebookFrame, {1062, 726, 450, 256}},
        PlacementCase{"HeldAtTheLeftEdge", {450, 256, -2000}, notebookFrame, {0, 726, 450, 256}},
        PlacementCase{"HalfAPoint", {451, 256, 0}, notebookFrame, {530.5, 726, 451, 256}},
        PlacementCase{
            "OnAScreenToTheLeft", {450, 256, 0}, {-1920, 0, 1920, 1080}, {-1185, 824, 450, 256}},
        PlacementCase{"HeldWithinAScreenToTheLeft",
                      {450, 256, 2000},
                      {-1920, 0, 1920, 1080},
                      {-450, 824, 450, 256}},
        PlacementCase{"HeldAtTheLeftOfAScreenToTheLeft",
                      {450, 256, -2000},
                      {-1920, 0, 1920, 1080},
                      {-1920, 824, 450, 256}},
        PlacementCase{"OnAScreenAbove", {450, 256, 0}, {0, 982, 1000, 500}, {275, 1226, 450, 256}},
        PlacementCase{"WiderThanTheScreen", {800, 256, 0}, {0, 0, 640, 480}, {0, 224, 800, 256}},
        PlacementCase{"WiderThanTheScreenWithOffset",
                      {800, 256, 300},
                      {100, 0, 640, 480},
                      {100, 224, 800, 256}},
        PlacementCase{
            "TallerThanTheScreen", {400, 600, 0}, {0, 0, 640, 480}, {120, -120, 400, 600}}),
    byMember<&PlacementCase::name>);

class PrompterFrameOnMainScreen : public ::testing::TestWithParam<PlacementCase> {};

TEST_P(PrompterFrameOnMainScreen, IgnoresTheOriginAndTheSidesOfTheScreen) {
    const auto& [name, placement, screen, expected] = GetParam();
    EXPECT_EQ(prompterFrameOnMainScreen(placement, screen), expected);
}

INSTANTIATE_TEST_SUITE_P(
    , PrompterFrameOnMainScreen,
    ::testing::Values(
        PlacementCase{"SameAsWithAChoiceOfScreens",
                      {450, 256, 0},
                      notebookFrame,
                      prompterFrame({450, 256, 0}, notebookFrame)},
        PlacementCase{"NotHeldAtTheRight", {450, 256, 2000}, notebookFrame, {2531, 726, 450, 256}},
        PlacementCase{"NotHeldAtTheLeft", {450, 256, -2000}, notebookFrame, {-1469, 726, 450, 256}},
        PlacementCase{
            "WithoutTheOrigin", {450, 256, 0}, {-1920, 300, 1920, 1080}, {735, 824, 450, 256}},
        PlacementCase{"WiderThanTheScreen", {800, 256, 0}, {0, 0, 640, 480}, {-80, 224, 800, 256}}),
    byMember<&PlacementCase::name>);

Screen screenWithBar(const Rect& frame, double barHeight) {
    Screen screen;
    screen.frame = frame;
    screen.visibleFrame = {frame.x, frame.y, frame.width, frame.height - barHeight};
    return screen;
}

TEST(MenuBarHeight, IsWhatTheVisibleFrameLeavesAtTheTop) {
    EXPECT_EQ(menuBarHeight(screenWithBar(notebookFrame, 32)), 32);
}

TEST(MenuBarHeight, IsMeasuredOnTheScreenItself) {
    EXPECT_EQ(menuBarHeight(screenWithBar({1512, -200, 1920, 1080}, 40)), 40);
}

TEST(MenuBarHeight, IgnoresADockAtTheBottom) {
    Screen screen = screenWithBar(notebookFrame, 32);
    screen.visibleFrame.y += 70;
    screen.visibleFrame.height -= 70;
    EXPECT_EQ(menuBarHeight(screen), 32);
}

TEST(MenuBarHeight, IsAtLeast24) {
    EXPECT_EQ(menuBarHeight(screenWithBar(notebookFrame, 0)), 24);
    EXPECT_EQ(menuBarHeight(screenWithBar(notebookFrame, 23.5)), 24);
}

TEST(MenuBarHeight, Is24WithoutAScreen) {
    EXPECT_EQ(menuBarHeight(std::nullopt), 24);
    EXPECT_EQ(menuBarHeight(Screen()), 24);
}

TEST(CollapsedFrame, KeepsTheTopEdge) {
    EXPECT_EQ(collapsedFrame({531, 726, 450, 256}, 32), (Rect{531, 950, 450, 32}));
}

TEST(ExpandedFrame, ReturnsToTheFrameBeforeCollapsing) {
    const Rect before{531, 726, 450, 256};
    EXPECT_EQ(expandedFrame(collapsedFrame(before, 32), before.height), before);
}

TEST(ExpandedFrame, IsAtLeast100High) {
    const Rect collapsed{531, 950, 450, 32};
    EXPECT_EQ(expandedFrame(collapsed, 60), (Rect{531, 882, 450, 100}));
    EXPECT_EQ(expandedFrame(collapsed, 0), (Rect{531, 882, 450, 100}));
    EXPECT_EQ(expandedFrame(collapsed, 100), (Rect{531, 882, 450, 100}));
    EXPECT_EQ(expandedFrame(collapsed, 101), (Rect{531, 881, 450, 101}));
}

TEST(TextLayoutWidth, LeavesTenPointsOnEitherSide) {
    EXPECT_EQ(textLayoutWidth(450), 430);
}

TEST(CloseButtonTop, CentresTheButtonInTheStrip) {
    EXPECT_EQ(closeButtonTop(24), 6);
    EXPECT_EQ(closeButtonTop(37), 12.5);
}

} // namespace
} // namespace tessaline
