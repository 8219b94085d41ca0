#pragma once

#include <QImage>

#include <cstdint>
#include <functional>
#include <vector>

class QPainter;

namespace tessaline {

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
    /// device-independent one has; forgets all strips.
    void resize(int width, int height, double devicePixelRatio);

    /// Forgets all strips.
    void invalidate();

    /// Forgets the strips between two rows.
    void invalidateRows(qsizetype top, qsizetype bottom);

    /// The pixels of a row, drawn now unless they are kept. Valid until the next call that is not
    /// for a row of the same screenful.
    const std::uint8_t* row(qsizetype index);

    /// Draws a strip around this row ahead of time, if it is not kept. Returns whether it drew.
    bool prepare(qsizetype row);

private:
    struct Slot {
        qsizetype strip = -1;
        QImage image;
    };

    Slot& slotOf(qsizetype strip);
    Slot* find(qsizetype strip);
    void drawStrip(Slot& slot, qsizetype strip);

    Draw draw;
    std::vector<Slot> kept;
    double pixelRatio = 1.0;
};

} // namespace tessaline
