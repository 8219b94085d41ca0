#include "prompter/view/FrameComposer.h"

#include "prompter/view/RowBlending.h"

#include <QColor>
#include <QPainter>

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace tessaline {

namespace {

constexpr int width = 90;
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
                                              strips.row(index).pixels + width * 4);
        blendRows(upper.data(), strips.row(index + 1).pixels, weight, frame.scanLine(row),
                  width * 4);
    }
    return frame;
}

class FrameComposerTest : public testing::Test {
protected:
    FrameComposerTest() {
        strips.resize(width, height, 1);
        reference.resize(width, height, 1);
        composer.resize({width, height}, 1);
    }

    StripCache strips{drawBars};
    StripCache reference{drawBars};
    FrameComposer composer;
};

TEST_F(FrameComposerTest, MixesWhatIsSeenAsIfItMixedEverything) {
    std::mt19937 random(5);
    for (int frame = 0; frame < 300; ++frame) {
        const double firstRow = double(random() % 100'000) / 37.0;
        composer.compose(strips, firstRow);
        ASSERT_EQ(composer.frame(), mixed(reference, firstRow)) << firstRow;
    }
}

TEST_F(FrameComposerTest, LeavesNothingOfTheFrameBefore) {
    for (double firstRow = 0; firstRow < 400; firstRow += 0.7) {
        composer.compose(strips, firstRow);
        ASSERT_EQ(composer.frame(), mixed(reference, firstRow)) << firstRow;
    }
}

TEST_F(FrameComposerTest, BeginsBlackAtAnotherSize) {
    composer.compose(strips, 20);
    composer.resize({width, 20}, 2);
    EXPECT_EQ(composer.frame().devicePixelRatio(), 2);
    for (int y = 0; y < 20; ++y) {
        for (int x = 0; x < width; ++x)
            ASSERT_EQ(composer.frame().pixel(x, y), FrameLook().ground());
    }
}

} // namespace
} // namespace tessaline
