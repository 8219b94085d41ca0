#pragma once

#include <QMargins>
#include <QRect>

#include <cstdint>
#include <span>
#include <vector>

namespace tessaline {

/// A strip along an edge of the whole desktop that a panel keeps free of other windows, in the
/// server's pixels. The panel of a monitor that does not reach that edge is at the strip's inner
/// end.
struct PanelStrip {
    Qt::Edge edge = Qt::TopEdge;
    QRect area;

    bool operator==(const PanelStrip&) const = default;
};

/// The strips that a window asks for: the four numbers of its property _NET_WM_STRUT, or the twelve
/// of _NET_WM_STRUT_PARTIAL. Other counts ask for none.
std::vector<PanelStrip> panelStripsFrom(std::span<const std::uint32_t> numbers, QSize desktop);

/// How many pixels the strips take of a monitor's edges. A strip that covers a whole monitor is for
/// a panel beyond it, and takes nothing.
QMargins reservedBy(std::span<const PanelStrip> strips, const QRect& monitor);

} // namespace tessaline
