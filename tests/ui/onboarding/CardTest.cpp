#include "ui/onboarding/Card.h"

#include "appearance/SystemPalette.h"
#include "support/WidgetPicture.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

TEST(Card, IsAGroundWithRoundCorners) {
    Card card;
    card.resize(100, 60);
    const QImage picture = pictureOf(card);
    EXPECT_EQ(picture.pixelColor(50, 30), SystemPalette::controlBackground);
    EXPECT_EQ(picture.pixelColor(50, 0), SystemPalette::controlBackground);
    EXPECT_EQ(picture.pixelColor(0, 0).alpha(), 0);
    EXPECT_EQ(picture.pixelColor(99, 59).alpha(), 0);
}

} // namespace
} // namespace tessaline
