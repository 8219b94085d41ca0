#include "ui/controls/Separator.h"

#include "support/WidgetPicture.h"

#include <gtest/gtest.h>

namespace tessaline {
namespace {

TEST(Separator, IsALineOfOnePointOverItsWholeWidth) {
    Separator separator(180);
    const QImage picture = pictureOf(separator);
    EXPECT_EQ(separator.size(), QSize(180, 1));
    EXPECT_EQ(boundsOf(picture, [&](int x, int y) { return qAlpha(picture.pixel(x, y)) > 0; }),
              QRectF(0, 0, 180, 1));
}

} // namespace
} // namespace tessaline
