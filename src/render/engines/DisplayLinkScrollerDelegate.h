#pragma once

namespace tessaline {

class DisplayLinkScroller;

/// Receives the movement that a scroll engine produces. The engines hold it weakly.
class DisplayLinkScrollerDelegate {
public:
    virtual ~DisplayLinkScrollerDelegate() = default;

    /// Moves the text by `deltaY` points, negative for forward reading.
    virtual void scrollerDidProduceScroll(DisplayLinkScroller& scroller, double deltaY) = 0;
};

} // namespace tessaline
