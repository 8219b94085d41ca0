#include "prompter/view/FrameComposition.h"

#include "prompter/view/RowBlending.h"

#include <QColor>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace tessaline {

namespace {

constexpr int width = 90;
constexpr std::size_t rowBytes = std::size_t{width} * 4;
constexpr int height = 150;

/// Bars, dots and gaps at random places of a column that is as good as endless.
void drawBars(QPainter& painter, double top, double bottom) {
    for (int bar = int(top / 40) - 1; bar * 40 < bottom; ++bar) {
        std::mt19937 random{std::uint32_t(bar + 2)};
        const int left = int(random() % 60);
        painter.fillRect(left, bar * 40 + int(random() % 30), int(random() % 40),
                         int(random() % 12), QColor::fromRgb(random() | 0xff000000));
        painter.fillRect(int(random() % width), bar * 40 + int(random() % 40), 1, 1, Qt::white);
    }
}

/// The same by mixing every pixel of every row.
QImage mixed(StripCache& strips, double firstRow) {
    QImage frame(width, height, QImage::Format_RGB32);
    auto index = qsizetype(std::floor(firstRow));
    const auto weight = unsigned(std::lround((firstRow - double(index)) * wholeRow));
    for (int row = 0; row < height; ++row, ++index) {
        const std::vector<std::uint8_t> upper(strips.row(index).pixels,
                                              strips.row(index).pixels + rowBytes);
        blendRows(upper.data(), strips.row(index + 1).pixels, weight, frame.scanLine(row),
                  rowBytes);
    }
    return frame;
}

class FrameComposition : public testing::Test {
protected:
    FrameComposition() {
        strips.resize(width, height, 1);
        reference.resize(width, height, 1);
        surroundings.fill(Qt::red);
    }

    /// Composed into the middle of an image.
    QImage composed(double firstRow) {
        composeFrame(strips, firstRow, {},
                     {.first = surroundings.scanLine(margin) + std::ptrdiff_t{margin} * 4,
                      .bytesPerRow = surroundings.bytesPerLine(),
                      .width = width,
                      .height = height});
        return surroundings.copy(margin, margin, width, height);
    }

    static constexpr int margin = 3;
    QImage surroundings = QImage(width + 2 * margin, height + 2 * margin, QImage::Format_RGB32);

    StripCache strips{drawBars};
    StripCache reference{drawBars};
};

TEST_F(FrameComposition, MixesWhatIsSeenAsIfItMixedEverything) {
    std::mt19937 random(5);
    for (int frame = 0; frame < 300; ++frame) {
        const double firstRow = double(random() % 100'000) / 37.0;
        ASSERT_EQ(composed(firstRow), mixed(reference, firstRow)) << firstRow;
    }
}

TEST_F(FrameComposition, LeavesNothingOfTheFrameBefore) {
    for (int frame = 0; frame < 600; ++frame) {
        const double firstRow = 0.7 * frame;
        ASSERT_EQ(composed(firstRow), mixed(reference, firstRow)) << firstRow;
    }
}

TEST_F(FrameComposition, LeavesAloneWhatIsAroundTheFrame) {
    composed(20);
    for (int y = 0; y < surroundings.height(); ++y) {
        for (int x = 0; x < surroundings.width(); ++x) {
            const bool isInside = QRect(margin, margin, width, height).contains(x, y);
            ASSERT_TRUE(isInside || surroundings.pixelColor(x, y) == Qt::red) << x << ", " << y;
        }
    }
}

} // namespace
} // namespace tessaline
