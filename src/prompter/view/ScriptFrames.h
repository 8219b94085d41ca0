#pragma once

#include "prompter/view/FrameLook.h"
#include "prompter/view/StripCache.h"

#include <QImage>
#include <QSize>

#include <utility>

class QPainter;
class QWidget;

namespace tessaline {

/// Pictures of what a view shows of a tall column, at any scroll position. Heights are points from
/// the column's top.
class ScriptFrames {
public:
    explicit ScriptFrames(StripCache::Draw draw) : strips(std::move(draw)) {}

    void setLook(const FrameLook& wanted) { look = wanted; }

    /// Makes frames as large as the view, in the pixels of its screen. Costs nothing when they are.
    void fit(const QWidget& view);

    bool isEmpty() const { return size.isEmpty(); }

    /// How high the pieces are that are drawn at once, in points.
    double stripHeight() const { return StripCache::rowsPerStrip / pixelRatio; }

    /// Has everything, or what lies between two heights, drawn anew.
    void invalidate() { strips.invalidate(); }
    void invalidateBetween(double top, double bottom);

    /// Draws ahead of time what lies close to the frame at a scroll position.
    void prepareAround(double position);

    /// Paints the frame at a scroll position, in place of what was there: everywhere, or only where
    /// the painter is clipped to.
    void paint(QPainter& painter, double position, bool everywhere);

private:
    void paintPicture(QPainter& painter, double firstRow);

    StripCache strips;
    QImage picture; ///< of the frame, once it could not be written to where it is seen
    QSize size;     ///< of a frame, in pixels
    double pixelRatio = 1.0;
    bool hasWholePixels = true; ///< the view ends where pixels do
    FrameLook look;
    FrameLook fittedLook;
};

} // namespace tessaline
