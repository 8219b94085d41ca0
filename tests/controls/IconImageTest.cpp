#include "controls/IconImage.h"

#include "support/WidgetPicture.h"

#include <QIcon>
#include <QPixmap>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

TEST(IconImage, ShowsAWidePictureInTheMiddle) {
    QPixmap wide(64, 32);
    wide.fill(Qt::red);
    IconImage image(QIcon(wide), 24);
    EXPECT_EQ(inkOf(pictureOf(image)), QRectF(0, 6, 24, 12));
}

} // namespace
} // namespace tessaline
