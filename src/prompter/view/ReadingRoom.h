#pragma once

namespace tessaline {

class ScriptLayout;
struct ReadingFrame;

/// Where in a view the reader reads, and how much room this leaves above and below the text. All
/// lengths are points.
struct ReadingRoom {
    /// The room without an eye line.
    static constexpr double inset = 10.0;

    double eyeLine = 0.0;  ///< the middle of the line that is read, from the view's top
    double readingY = 0.0; ///< where a view's place is measured: the eye line or the top
    double above = inset;
    double below = inset;
    double lineHeight = 0.0; ///< of body text

    /// The scroll position that has a height of the column where places are measured, and the
    /// height that a scroll position has there.
    double positionOf(double y) const { return y + above - readingY; }
    double columnY(double position) const { return position + readingY - above; }

    /// The room in a view of this height. With an eye line, the first and the last line with text
    /// can come to it and nothing goes beyond; they are measured for that.
    static ReadingRoom of(const ReadingFrame& frame, ScriptLayout& layout, double viewHeight);
};

} // namespace tessaline
