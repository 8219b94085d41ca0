#include "ScriptViewFixture.h"
#include "support/WidgetPicture.h"

#include <QImage>

#include <set>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

class ReadingGuideTest : public ScriptViewFixture {
protected:
    ReadingGuideTest() { show(lines(100)); }

    ReadingFrame frameOf(ReadingGuide guide, double lines = 1.0) {
        return {.isActive = true, .eyeLine = 0.4, .guide = guide, .guideLines = lines};
    }

    QImage picture(const ReadingFrame& frame, int pixelsPerPoint = 1) {
        view.setReadingFrame(frame);
        return pictureOf(view, pixelsPerPoint);
    }

    /// Where two pictures differ, in points.
    static QRectF changed(const QImage& before, const QImage& after) {
        return boundsOf(after,
                        [&](int x, int y) { return before.pixel(x, y) != after.pixel(x, y); });
    }

    double lineHeight() { return view.caretRect(0).height(); }
};

TEST_F(ReadingGuideTest, IsABandOfOneOrTwoLinesAroundTheEyeLine) {
    for (const double count : {1.0, 2.0}) {
        const QImage without = picture(frameOf(ReadingGuide::none));
        const QRectF band = changed(without, picture(frameOf(ReadingGuide::band, count)));
        EXPECT_EQ(band.left(), 0);
        EXPECT_EQ(band.width(), view.width());
        EXPECT_EQ(band.height(), count * lineHeight());
        EXPECT_NEAR(band.center().y(), view.eyeLine(), 0.5);
    }
}

TEST_F(ReadingGuideTest, DimsNothing) {
    const QImage without = picture(frameOf(ReadingGuide::none));
    for (const auto guide : {ReadingGuide::band, ReadingGuide::marker}) {
        const QImage with = picture(frameOf(guide));
        for (int y = 0; y < with.height(); ++y) {
            for (int x = 0; x < with.width(); ++x)
                ASSERT_GE(qGray(with.pixel(x, y)), qGray(without.pixel(x, y))) << x << ", " << y;
        }
    }
}

TEST_F(ReadingGuideTest, IsAPairOfMarkersBesideTheText) {
    const QImage without = picture(frameOf(ReadingGuide::none));
    const QImage with = picture(frameOf(ReadingGuide::marker));
    const QRectF markers = changed(without, with);
    EXPECT_EQ(markers.left(), 0);
    EXPECT_EQ(markers.right(), view.width());
    EXPECT_NEAR(markers.center().y(), view.eyeLine(), 0.5);
    EXPECT_NEAR(markers.height(), 12, 3);
    const QRect text(15, 0, view.width() - 30, view.height());
    EXPECT_EQ(with.copy(text), without.copy(text));
    const auto y = int(view.eyeLine());
    EXPECT_EQ(with.pixel(1, y), qRgb(209, 181, 140));
    EXPECT_EQ(with.pixel(view.width() - 2, y), with.pixel(1, y));
}

TEST_F(ReadingGuideTest, PointsInwards) {
    const QImage with = picture(frameOf(ReadingGuide::marker));
    const auto inkAt = [&](int x) {
        int pixels = 0;
        for (int y = 0; y < with.height(); ++y)
            pixels += qGray(with.pixel(x, y)) > 90;
        return pixels;
    };
    EXPECT_GT(inkAt(0), inkAt(5));
    EXPECT_GT(inkAt(view.width() - 1), inkAt(view.width() - 6));
}

TEST_F(ReadingGuideTest, HasSharpEdgesAtEveryScale) {
    view.setFontSize(15.3);
    const ReadingFrame frame{.isActive = true, .eyeLine = 0.333, .guide = ReadingGuide::band};
    for (const int scale : {1, 2, 3}) {
        const QImage with = picture(frame, scale);
        // Beside the text there are black and the band, and nothing in between.
        const int x = 3 * scale;
        std::set<QRgb> colors;
        for (int y = 0; y < with.height(); ++y)
            colors.insert(with.pixel(x, y));
        EXPECT_EQ(colors.size(), 2U) << scale;
    }
}

} // namespace
} // namespace tessaline
