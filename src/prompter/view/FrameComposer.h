#pragma once

#include "prompter/view/StripCache.h"

#include <QImage>
#include <QSize>

#include <vector>

namespace tessaline {

/// Makes frames of the rows of strips, at any fraction of a row. Only what is not black is mixed; a
/// script is mostly black.
class FrameComposer {
public:
    /// Sets the size of frames in device pixels, and how many of those a device-independent one
    /// has.
    void resize(const QSize& pixels, double devicePixelRatio);

    /// Composes the frame that begins so many rows below the column's top. Allocates nothing.
    void compose(StripCache& strips, double firstRow);

    /// The frame that was composed last.
    const QImage& frame() const { return image; }

private:
    void composeRow(int row, const StripCache::Row& upper, const StripCache::Row& lower,
                    unsigned lowerWeight);

    QImage image;
    std::vector<PixelRange> drawn; ///< what is not black of each row of the frame
};

} // namespace tessaline
