#pragma once

#include "prompter/view/FrameLook.h"

#include <QImage>

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

class QPainter;

namespace tessaline {

/// A stretch of a row, in device pixels.
struct PixelRange {
    int begin = 0;
    int end = 0;

    bool isEmpty() const { return begin >= end; }
};

/// Pictures of a tall column, cut into strips of equal height that are drawn once and kept while
/// they are near the eye. Rows count device pixels from the column's top. Once it has been sized,
/// it allocates nothing any more.
class StripCache {
public:
    static constexpr int rowsPerStrip = 64;

    /// Draws the column between two rows; the painter's origin is the column's top left corner, in
    /// device-independent pixels.
    using Draw = std::function<void(QPainter& painter, double top, double bottom)>;

    explicit StripCache(Draw draw);

    /// Sets the size of what is visible, in device pixels, and how many of those a
    /// device-independent one has, and how strips look; forgets all strips. Turning them upside
    /// down is left to whoever puts them together.
    void resize(int width, int height, double devicePixelRatio, const FrameLook& look = {});

    /// Forgets all strips.
    void invalidate();

    /// Forgets the strips between two rows.
    void invalidateRows(qsizetype top, qsizetype bottom);

    struct Row {
        const std::uint8_t* pixels;
        PixelRange seen; ///< what is not ground
    };

    /// A row, drawn now unless it is kept. Valid until the next call that is not for a row of the
    /// same screenful.
    Row row(qsizetype index);

    /// Draws a strip around this row ahead of time, if it is not kept. Returns whether it drew.
    bool prepare(qsizetype row);

private:
    struct Slot {
        qsizetype strip = -1;
        QImage image;
        std::array<PixelRange, rowsPerStrip> seen;
    };

    Slot& slotOf(qsizetype strip);
    Slot* find(qsizetype strip);
    void drawStrip(Slot& slot, qsizetype strip);

    Draw draw;
    std::vector<Slot> kept;
    FrameLook look;
    double pixelRatio = 1.0;
};

} // namespace tessaline
