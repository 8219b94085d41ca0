#include "prompter/view/PixelsUnderPainter.h"

#include <QImage>
#include <QPainter>
#include <QPicture>

#include <gtest/gtest.h>

namespace tessaline {

namespace {

constexpr QSize size(30, 20);
constexpr auto opaque = QImage::Format_RGB32;
constexpr auto translucent = QImage::Format_ARGB32_Premultiplied;

struct PixelsUnderPainter : testing::Test {
    const std::uint8_t* place(int x, int y) const {
        return image.constScanLine(y) + std::ptrdiff_t{x} * 4;
    }

    QImage image = QImage(100, 80, translucent);
    QPainter painter{&image};
};

TEST_F(PixelsUnderPainter, AreWhereAPictureWouldBePut) {
    painter.translate(7, 5);
    const auto rows = pixelsUnder(painter, size, 1, translucent);
    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->first, place(7, 5));
    EXPECT_EQ(rows->row(1), place(7, 6));
    EXPECT_EQ(QSize(rows->width, rows->height), size);
}

TEST_F(PixelsUnderPainter, AreThoseOfADenseScreen) {
    painter.scale(2, 2);
    painter.translate(7, 5);
    const auto rows = pixelsUnder(painter, size, 2, translucent);
    ASSERT_TRUE(rows);
    EXPECT_EQ(rows->first, place(14, 10));
}

TEST_F(PixelsUnderPainter, AreThereForOpaquePicturesOnATranslucentGround) {
    EXPECT_TRUE(pixelsUnder(painter, size, 1, opaque));
}

TEST_F(PixelsUnderPainter, AreNotThereForTranslucentPicturesOnAnOpaqueGround) {
    QImage ground(100, 80, opaque);
    const QPainter onGround(&ground);
    EXPECT_TRUE(pixelsUnder(onGround, size, 1, opaque));
    EXPECT_FALSE(pixelsUnder(onGround, size, 1, translucent));
}

TEST_F(PixelsUnderPainter, AreNotThereBetweenPixels) {
    painter.translate(7, 5.5);
    EXPECT_FALSE(pixelsUnder(painter, size, 1, translucent));
}

TEST_F(PixelsUnderPainter, AreNotThereForAPictureThatIsScaledOrTurned) {
    EXPECT_FALSE(pixelsUnder(painter, size, 2, translucent));
    painter.rotate(90);
    EXPECT_FALSE(pixelsUnder(painter, size, 1, translucent));
}

TEST_F(PixelsUnderPainter, AreNotThereBeyondTheEdge) {
    painter.translate(71, 0);
    EXPECT_FALSE(pixelsUnder(painter, size, 1, translucent));
    painter.translate(-72, 0);
    EXPECT_FALSE(pixelsUnder(painter, size, 1, translucent));
}

TEST_F(PixelsUnderPainter, AreNotThereWhereNothingIsDrawnYet) {
    QPicture picture;
    const QPainter onPicture(&picture);
    EXPECT_FALSE(pixelsUnder(onPicture, size, 1, translucent));
    EXPECT_FALSE(pixelsUnder(QPainter(), size, 1, translucent));
}

} // namespace
} // namespace tessaline
