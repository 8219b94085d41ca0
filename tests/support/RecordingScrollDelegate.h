#pragma once

#include "render/engines/DisplayLinkScrollerDelegate.h"

#include <functional>
#include <numeric>
#include <vector>

namespace tessaline {

/// Keeps the distances that a scroll engine delivers.
class RecordingScrollDelegate final : public DisplayLinkScrollerDelegate {
public:
    void scrollerDidProduceScroll(DisplayLinkScroller& scroller, double deltaY) override {
        deltas.push_back(deltaY);
        if (onScroll) onScroll(scroller);
    }

    /// Points read so far, positive for forward reading.
    double position() const { return -std::accumulate(deltas.begin(), deltas.end(), 0.0); }

    std::vector<double> deltas;
    /// Called at every delivery with the engine that came with it.
    std::function<void(DisplayLinkScroller&)> onScroll;
};

} // namespace tessaline
