#include "prompter/layout/ScriptLayout.h"
#include "render/markdown/MarkdownRenderer.h"

#include <QImage>
#include <QPainter>

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int columnWidth = 400;

ScriptLayout layoutOf(const QString& markdown, double fontSize) {
    ScriptLayout layout;
    Script script(MarkdownRenderer(fontSize).render(markdown));
    layout.setScript(std::make_shared<const Script>(std::move(script)));
    layout.measureMore(std::numeric_limits<qsizetype>::max(), 0);
    return layout;
}

/// The column over black on a screen of so many pixels a point.
QImage pictureOf(ScriptLayout& layout, double pixelRatio, const TextRange& selection = {}) {
    QImage image(int(columnWidth * pixelRatio), int(layout.height() * pixelRatio),
                 QImage::Format_RGB32);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::TextAntialiasing);
    painter.scale(pixelRatio, pixelRatio);
    layout.draw(painter, 0, layout.height(), selection);
    painter.end();
    return image;
}

double lightOf(const QImage& image) {
    double light = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            light += qGray(image.pixel(x, y));
    }
    return light;
}

class FractionalSizes : public testing::TestWithParam<double> {};

TEST_P(FractionalSizes, AreDrawnEachALittleLarger) {
    for (const QString& text : {u"Hamburgefonts"_s, u"# Hamburg"_s, u"`Hamburg`"_s}) {
        double light = 0;
        double width = 0;
        double height = 0;
        for (int tenths = 159; tenths <= 171; ++tenths) {
            const double size = tenths / 10.0;
            ScriptLayout layout = layoutOf(text, size);
            const double newLight = lightOf(pictureOf(layout, GetParam()));
            const double newWidth = layout.caretRect(layout.script().length()).x();
            EXPECT_GT(newLight, light) << size << text.toStdString();
            EXPECT_GT(newWidth, width) << size << text.toStdString();
            EXPECT_GE(layout.height(), height) << size << text.toStdString();
            if (width > 0) {
                EXPECT_NEAR(newWidth / width, size / (size - 0.1), 0.003);
            }
            light = newLight;
            width = newWidth;
            height = layout.height();
        }
    }
}

TEST_P(FractionalSizes, AreNoLessSharpThanWholeOnes) {
    // As much of the light is in its brightest pixels.
    const auto sharpness = [&](double size) {
        ScriptLayout layout = layoutOf(u"Hamburgefonts and other words"_s, size);
        const QImage image = pictureOf(layout, GetParam());
        double bright = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                const int gray = qGray(image.pixel(x, y));
                if (gray > 140) bright += gray;
            }
        }
        return bright / lightOf(image);
    };
    const double whole = std::min(sharpness(16), sharpness(17));
    for (const double size : {16.2, 16.4, 16.5, 16.8})
        EXPECT_GT(sharpness(size), 0.9 * whole) << size;
}

TEST_P(FractionalSizes, HighlightTheirLinesWithoutGaps) {
    for (int tenths = 160; tenths < 170; ++tenths) {
        const double size = tenths / 10.0;
        ScriptLayout layout = layoutOf(u"iiii "_s.repeated(100), size);
        const QImage image = pictureOf(layout, GetParam(), {0, 500});
        for (int y = 0; y < image.height(); ++y)
            ASSERT_GT(qBlue(image.pixel(0, y)), 100) << size << " row " << y;
    }
}

INSTANTIATE_TEST_SUITE_P(EveryPixelRatio, FractionalSizes, testing::Values(1.0, 1.5, 2.0),
                         [](const auto& tested) {
                             return "Of" + std::to_string(int(tested.param * 10)) + "Tenths";
                         });

TEST(FractionalSize, IsFoundWhereItIsDrawn) {
    ScriptLayout layout =
        layoutOf(u"Some **bold** words in a line. "_s + u"And more. "_s.repeated(30), 16.4);
    const qsizetype length = layout.script().length();
    for (qsizetype offset = 0; offset < length; offset += 7) {
        const QRectF caret = layout.caretRect(offset);
        EXPECT_NEAR(double(layout.offsetAt(caret.center())), double(offset), 1) << offset;
    }
}

TEST(FractionalSize, FillsTheColumn) {
    ScriptLayout layout = layoutOf(u"i "_s.repeated(500), 16.45);
    const qsizetype secondLine = layout.offsetAt({0, layout.caretRect(0).bottom() + 1});
    EXPECT_GT(layout.caretRect(secondLine - 2).x(), columnWidth - 25);
    EXPECT_LE(layout.caretRect(secondLine - 2).x(), columnWidth);
}

TEST(WholeSize, IsDrawnUnscaled) {
    for (const double size : {10, 12, 16, 17, 30}) {
        FormatTable table;
        table.assign({TextAttributes{.font = TextFont{.size = size}}});
        EXPECT_EQ(table[0].scale, 1.0) << size;
    }
}

/// The columns of a picture that are highlighted.
std::vector<int> blueColumns(const QImage& image) {
    std::vector<int> columns;
    for (int x = 0; x < image.width(); ++x) {
        if (qBlue(image.pixel(x, 1)) > 100) columns.push_back(x);
    }
    return columns;
}

TEST(Selection, IsHighlightedWhereTextRunsBothWays) {
    const double widthAlone = layoutOf(u"abc"_s, 16).caretRect(3).x();
    ScriptLayout layout = layoutOf(u"שלום abc שלום"_s, 16);
    const std::vector<int> columns = blueColumns(pictureOf(layout, 1, {5, 8}));
    ASSERT_FALSE(columns.empty());
    EXPECT_EQ(columns.back() - columns.front() + 1, int(columns.size())) << "in one piece";
    EXPECT_NEAR(double(columns.size()), widthAlone, 2);
    EXPECT_GT(columns.front(), columnWidth / 2);
}

TEST(Selection, ReachesOverTabs) {
    ScriptLayout layout = layoutOf(u"a\tb"_s, 16);
    const std::vector<int> columns = blueColumns(pictureOf(layout, 1, {0, 3}));
    EXPECT_NEAR(double(columns.size()), layout.caretRect(3).x(), 1);
}

} // namespace
} // namespace tessaline
