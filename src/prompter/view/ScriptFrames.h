#pragma once

#include "prompter/view/FrameComposer.h"
#include "prompter/view/StripCache.h"

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

    bool isEmpty() const { return composer.frame().isNull(); }

    /// How high the pieces are that are drawn at once, in points.
    double stripHeight() const { return StripCache::rowsPerStrip / pixelRatio(); }

    /// Has everything, or what lies between two heights, drawn anew.
    void invalidate() { strips.invalidate(); }
    void invalidateBetween(double top, double bottom);

    /// Draws ahead of time what lies close to the frame at a scroll position.
    void prepareAround(double position);

    void compose(double position) { composer.compose(strips, position * pixelRatio()); }

    /// Paints the frame that was composed last into a view, in place of what was there.
    void paint(QPainter& painter) const;

private:
    double pixelRatio() const { return composer.frame().devicePixelRatio(); }

    StripCache strips;
    FrameComposer composer;
    FrameLook look;
    FrameLook fittedLook;
};

} // namespace tessaline
