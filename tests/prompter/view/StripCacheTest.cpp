#include "prompter/view/StripCache.h"

#include <QColor>
#include <QPainter>

#include <gtest/gtest.h>

#include <vector>

namespace tessaline {
namespace {

constexpr int rows = StripCache::rowsPerStrip;

/// A cache over a column whose row n has the blue value n modulo 251, and what it drew.
struct Column {
    std::vector<double> drawnTops;
    std::vector<double> drawnHeights;
    StripCache strips{[this](QPainter& painter, double top, double bottom) {
        drawnTops.push_back(top);
        drawnHeights.push_back(bottom - top);
        for (double y = top; y < bottom; ++y)
            painter.fillRect(QRectF(0, y, 10, 1), QColor(0, 0, int(y) % 251));
    }};

    int blueOf(qsizetype row) { return strips.row(row).pixels[0]; }
};

TEST(StripCache, ShowsEveryRowOfTheColumn) {
    Column column;
    column.strips.resize(10, 200, 1.0);
    for (int row = 0; row < 2000; ++row)
        ASSERT_EQ(column.blueOf(row), row % 251) << row;
}

TEST(StripCache, DrawsEachStripOfAScreenfulOnce) {
    Column column;
    column.strips.resize(10, 200, 1.0);
    for (int frame = 0; frame < 5; ++frame) {
        for (int row = 30; row <= 231; ++row)
            column.blueOf(row);
    }
    EXPECT_EQ(column.drawnTops, (std::vector<double>{0, rows, 2.0 * rows, 3.0 * rows}));
}

TEST(StripCache, KeepsThePointersOfAScreenfulValid) {
    Column column;
    column.strips.resize(10, 200, 1.0);
    std::vector<const std::uint8_t*> pointers;
    for (int row = 500; row <= 701; ++row)
        pointers.push_back(column.strips.row(row).pixels);
    for (int row = 500; row <= 701; ++row)
        ASSERT_EQ(pointers[std::size_t(row - 500)][0], row % 251);
}

TEST(StripCache, PreparesStripsAheadOnlyOnce) {
    Column column;
    column.strips.resize(10, 200, 1.0);
    EXPECT_TRUE(column.strips.prepare(3 * rows));
    EXPECT_FALSE(column.strips.prepare(3 * rows + 5));
    EXPECT_FALSE(column.strips.prepare(-5));
    column.drawnTops.clear();
    column.blueOf(3 * rows + 1);
    EXPECT_TRUE(column.drawnTops.empty());
}

TEST(StripCache, DrawsAgainWhatWasInvalidated) {
    Column column;
    column.strips.resize(10, 200, 1.0);
    column.blueOf(0);
    column.blueOf(rows);
    column.drawnTops.clear();
    column.strips.invalidate();
    column.blueOf(0);
    column.blueOf(rows);
    EXPECT_EQ(column.drawnTops.size(), 2u);
}

TEST(StripCache, DrawsInDevicePixels) {
    Column column;
    column.strips.resize(20, 200, 2.0);
    EXPECT_EQ(column.blueOf(0), 0);
    EXPECT_EQ(column.blueOf(21), 10);
    EXPECT_EQ(column.blueOf(2 * rows), rows);
    EXPECT_EQ(column.drawnTops, (std::vector<double>{0, double(rows)}));
    EXPECT_EQ(column.drawnHeights, (std::vector<double>{rows / 2.0, rows / 2.0}));
}

} // namespace
} // namespace tessaline
