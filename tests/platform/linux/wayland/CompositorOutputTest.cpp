#include "platform/linux/wayland/CompositorOutput.h"

#include <gtest/gtest.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

const CompositorOutput panel{.name = u"eDP-1"_s, .area = {0, 0, 1280, 800}};
const CompositorOutput projector{.name = u"HDMI-A-1"_s, .area = {1280, 0, 1024, 768}};

TEST(CompositorOutputTest, IsFoundByItsPlaceAndSize) {
    EXPECT_EQ(outputIn({0, 0, 1280, 800}, false, {panel, projector}), panel);
    EXPECT_EQ(outputIn({1280, 0, 1024, 768}, false, {panel, projector}), projector);
    EXPECT_EQ(outputIn({1280, 0, 1280, 800}, false, {panel, projector}), std::nullopt);
}

TEST(CompositorOutputTest, IsFoundInSpiteOfRounding) {
    EXPECT_EQ(outputIn({1280, 0, 1023, 769}, false, {panel, projector}), projector);
    EXPECT_EQ(outputIn({1279, 0, 1024, 768}, false, {panel, projector}), std::nullopt);
}

TEST(CompositorOutputTest, ThatIsTheOnlyOneIsTheOnlyScreen) {
    EXPECT_EQ(outputIn({0, 0, 2560, 1600}, true, {panel}), panel) << "at a scale of its own";
    EXPECT_EQ(outputIn({0, 0, 2560, 1600}, true, {panel, projector}), std::nullopt);
    EXPECT_EQ(outputIn({0, 0, 2560, 1600}, false, {panel}), std::nullopt);
}

TEST(CompositorOutputTest, IsNotGuessedWhereTwoShowTheSame) {
    CompositorOutput mirror = projector;
    mirror.area = panel.area;
    EXPECT_EQ(outputIn(panel.area, false, {panel, mirror}), std::nullopt);
}

TEST(CompositorOutputTest, IsUnknownWhereNothingIsKnown) {
    EXPECT_EQ(outputIn({0, 0, 1280, 800}, true, {}), std::nullopt);
}

} // namespace
} // namespace tessaline
