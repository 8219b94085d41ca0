#include "export/PngRendering.h"

#include "render/markdown/MarkdownRenderer.h"
#include "support/PrintQt.h"

#include <QImage>

#include <gtest/gtest.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

QImage pictureOf(const QString& markdown, int width, double fontSize = 16) {
    QString error;
    const auto bytes = pngOf(MarkdownRenderer(fontSize).render(markdown), width, &error);
    EXPECT_EQ(error, QString());
    return bytes ? QImage::fromData(*bytes, "PNG") : QImage();
}

/// Where the picture is not black.
QRect inkOf(const QImage& picture) {
    QRect ink;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) > 0) ink |= QRect(x, y, 1, 1);
        }
    }
    return ink;
}

QRgb brightestPixelOf(const QImage& picture) {
    QRgb brightest = qRgb(0, 0, 0);
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qGray(picture.pixel(x, y)) > qGray(brightest)) brightest = picture.pixel(x, y);
        }
    }
    return brightest;
}

TEST(PngRendering, OfAnEmptyTextIsABlackColumn) {
    const QImage picture = pictureOf(QString(), 450);
    EXPECT_EQ(picture.width(), 450);
    EXPECT_GT(picture.height(), 20);
    EXPECT_TRUE(inkOf(picture).isEmpty());
}

TEST(PngRendering, KeepsTheMarginsFree) {
    for (const int width : {50, 123, 450}) {
        const QImage picture = pictureOf(u"# Heading\nSome text that wraps. *Italic*\n"_s, width);
        const QRect ink = inkOf(picture);
        EXPECT_EQ(picture.width(), width);
        EXPECT_GE(ink.left(), 14);
        EXPECT_LE(ink.right(), width - 14);
        EXPECT_GE(ink.top(), 10);
        EXPECT_LT(ink.bottom(), picture.height() - 10);
    }
}

TEST(PngRendering, DrawsTextInAmber) {
    const QRgb brightest = brightestPixelOf(pictureOf(u"**HHH**"_s, 450, 40));
    EXPECT_NEAR(qRed(brightest), 0.82 * 255, 1);
    EXPECT_NEAR(qGreen(brightest), 0.71 * 255, 1);
    EXPECT_NEAR(qBlue(brightest), 0.55 * 255, 1);
}

TEST(PngRendering, GrowsWithTheTextAndTheFont) {
    const int one = pictureOf(u"a"_s, 450).height();
    EXPECT_EQ(pictureOf(u"a\na\na"_s, 450).height() - 20, 3 * (one - 20));
    EXPECT_GT(pictureOf(u"a"_s, 450, 32).height(), one);
}

TEST(PngRendering, DrawsEveryLineOfALongTextOnceAndWhole) {
    // All rows of a line look the same whichever strip they are drawn in.
    const int lines = 300;
    const QImage picture = pictureOf(u"Hg~~x~~ `code`\n"_s.repeated(lines).chopped(1), 450);
    const int lineHeight = (picture.height() - 20) / lines;
    ASSERT_EQ(lineHeight * lines + 20, picture.height());
    ASSERT_GT(picture.height(), 4096);
    const QImage first = picture.copy(0, 10, 450, lineHeight);
    ASSERT_FALSE(inkOf(first).isEmpty());
    for (int line = 1; line < lines; ++line)
        ASSERT_EQ(picture.copy(0, 10 + line * lineHeight, 450, lineHeight), first) << line;
}

TEST(PngRendering, RefusesAPictureThatWouldBeTooTall) {
    for (const QString& text : {u"line\n"_s.repeated(5000), u"word "_s.repeated(2'000'000)}) {
        QString error;
        EXPECT_EQ(pngOf(MarkdownRenderer(16).render(text), 450, &error), std::nullopt);
        EXPECT_EQ(error, u"the picture would be taller than 32767 pixels"_s);
    }
}

} // namespace
} // namespace tessaline
