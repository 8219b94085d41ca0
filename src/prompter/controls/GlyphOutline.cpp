#include "prompter/controls/GlyphOutline.h"

#include <QPolygonF>
#include <QTransform>

#include <algorithm>
#include <array>
#include <cmath>
#include <initializer_list>
#include <numbers>
#include <utility>

namespace tessaline {

namespace {

constexpr QChar textPresentation{0xFE0E};

// Shapes are drawn in a square of side 1 around the origin. Where one lies within another, the
// inner is a hole. Those of straight strokes take how many device pixels long the side will be.

QPainterPath gear(QFont::Weight, double) {
    constexpr int teeth = 8;
    constexpr double tipRadius = 0.5;
    constexpr double rootRadius = 0.37;
    constexpr double holeRadius = 0.18;
    // Where the flanks of a tooth begin and end, in parts of the angle from tooth to tooth.
    constexpr std::array flanks{std::pair{-0.27, rootRadius}, std::pair{-0.17, tipRadius},
                                std::pair{0.17, tipRadius}, std::pair{0.27, rootRadius}};
    QPolygonF rim;
    for (int tooth = 0; tooth < teeth; ++tooth) {
        for (const auto& [part, radius] : flanks) {
            const double angle = 2 * std::numbers::pi * (tooth + part) / teeth;
            rim << QPointF(radius * std::sin(angle), -radius * std::cos(angle));
        }
    }
    QPainterPath path;
    path.addPolygon(rim);
    path.closeSubpath();
    path.addEllipse(QPointF(), holeRadius, holeRadius);
    return path;
}

QPainterPath playPause(QFont::Weight, double) {
    QPainterPath path;
    path.addPolygon(QPolygonF{{-0.5, -0.35}, {0.06, 0.0}, {-0.5, 0.35}});
    path.closeSubpath();
    path.addRect(QRectF(0.12, -0.35, 0.13, 0.7));
    path.addRect(QRectF(0.37, -0.35, 0.13, 0.7));
    return path;
}

void addTextLines(QPainterPath& path, std::initializer_list<double> tops) {
    for (const double top : tops)
        path.addRect(QRectF(-0.19, top, 0.38, 0.09));
}

QPainterPath clipboard(QFont::Weight, double) {
    QPainterPath board;
    board.addRoundedRect(QRectF(-0.4, -0.42, 0.8, 0.92), 0.1, 0.1);
    board.addRect(QRectF(-0.31, -0.33, 0.62, 0.74));
    QPainterPath clip;
    clip.addRoundedRect(QRectF(-0.2, -0.5, 0.4, 0.24), 0.06, 0.06);
    QPainterPath path = board.united(clip);
    addTextLines(path, {-0.06, 0.13});
    return path;
}

QPainterPath page(QFont::Weight, double) {
    QPainterPath path;
    path.addPolygon(
        QPolygonF{{-0.38, -0.5}, {0.12, -0.5}, {0.38, -0.24}, {0.38, 0.5}, {-0.38, 0.5}});
    path.closeSubpath();
    path.addPolygon(QPolygonF{
        {-0.29, -0.41}, {0.04, -0.41}, {0.04, -0.16}, {0.29, -0.16}, {0.29, 0.41}, {-0.29, 0.41}});
    path.closeSubpath();
    addTextLines(path, {0.0, 0.19});
    return path;
}

double strokeOf(QFont::Weight weight) {
    return 0.02 + 0.00016 * static_cast<int>(weight);
}

/// A part of the side that is nearest to it and a whole number of pixels long.
double whole(double part, double pixels) {
    return std::max(std::round(part * pixels), 1.0) / pixels;
}

QPainterPath dash(QFont::Weight weight, double pixels) {
    const double length = whole(1.0, pixels);
    const double stroke = whole(strokeOf(weight), pixels);
    QPainterPath path;
    path.addRect(QRectF(-length / 2, -stroke / 2, length, stroke));
    return path;
}

QPainterPath square(QFont::Weight weight, double pixels) {
    const double side = whole(1.0, pixels);
    const double stroke = whole(strokeOf(weight), pixels);
    const QRectF outer(-side / 2, -side / 2, side, side);
    QPainterPath path;
    path.addRect(outer);
    path.addRect(outer.adjusted(stroke, stroke, -stroke, -stroke));
    return path;
}

struct Glyph {
    QStringView text;
    QPainterPath (*shape)(QFont::Weight, double pixels);
    double side; // of the shape's square, in parts of the font's size
};

constexpr std::array glyphs{
    Glyph{u"\u2014", dash, 0.82},          Glyph{u"\u25A1", square, 0.74},
    Glyph{u"\u2699", gear, 0.88},          Glyph{u"\u23EF", playPause, 0.92},
    Glyph{u"\U0001F4CB", clipboard, 0.96}, Glyph{u"\U0001F4C4", page, 0.96},
};

} // namespace

std::optional<QPainterPath> glyphOutline(const QString& text, double points, QFont::Weight weight,
                                         double pixelRatio) {
    QStringView glyph = text;
    if (glyph.endsWith(textPresentation)) glyph.chop(1);
    for (const auto& [name, shape, side] : glyphs) {
        if (name != glyph) continue;
        return QTransform::fromScale(side * points, side * points)
            .map(shape(weight, side * points * pixelRatio));
    }
    return std::nullopt;
}

} // namespace tessaline
