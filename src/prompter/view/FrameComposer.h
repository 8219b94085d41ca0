#pragma once

#include "prompter/view/StripCache.h"

#include <QImage>
#include <QSize>

#include <vector>

namespace tessaline {

/// Makes frames of the rows of strips, at any fraction of a row. Only what is not ground is
/// mixed; most of a script is.
class FrameComposer {
public:
    /// Sets the size of frames in device pixels, how many of those a device-independent one has,
    /// and how they look, which is as the strips look.
    void resize(const QSize& pixels, double devicePixelRatio, const FrameLook& look = {});

    /// Composes the frame that begins so many rows below the column's top. Allocates nothing.
    void compose(StripCache& strips, double firstRow);

    /// The frame that was composed last.
    const QImage& frame() const { return image; }

private:
    void clear(std::uint8_t* row, int begin, int end) const;
    void composeRow(int row, const StripCache::Row& upper, const StripCache::Row& lower,
                    unsigned lowerWeight);

    QImage image;
    FrameLook look;
    std::vector<PixelRange> drawn; ///< what is not ground of each row of the frame
};

} // namespace tessaline
