#include "platform/linux/x11/PanelStrips.h"

#include <algorithm>
#include <array>

namespace tessaline {

namespace {

constexpr std::size_t sides = 4;
constexpr std::size_t numbersOfPartialStrut = 3 * sides;

constexpr std::array<Qt::Edge, sides> sidesInOrder{Qt::LeftEdge, Qt::RightEdge, Qt::TopEdge,
                                                   Qt::BottomEdge};

QRect stripArea(Qt::Edge edge, int thickness, int begin, int end, QSize desktop) {
    const int length = end - begin;
    switch (edge) {
    case Qt::LeftEdge:
        return {0, begin, thickness, length};
    case Qt::RightEdge:
        return {desktop.width() - thickness, begin, thickness, length};
    case Qt::TopEdge:
        return {begin, 0, length, thickness};
    case Qt::BottomEdge:
        break;
    }
    return {begin, desktop.height() - thickness, length, thickness};
}

void take(QMargins& margins, const PanelStrip& strip, const QRect& monitor) {
    const QRect taken = strip.area & monitor;
    if (taken.isEmpty()) return;
    const bool isWhole = strip.edge == Qt::LeftEdge || strip.edge == Qt::RightEdge
                             ? taken.width() == monitor.width()
                             : taken.height() == monitor.height();
    if (isWhole) return;
    switch (strip.edge) {
    case Qt::LeftEdge:
        return margins.setLeft(std::max(margins.left(), taken.width()));
    case Qt::RightEdge:
        return margins.setRight(std::max(margins.right(), taken.width()));
    case Qt::TopEdge:
        return margins.setTop(std::max(margins.top(), taken.height()));
    case Qt::BottomEdge:
        return margins.setBottom(std::max(margins.bottom(), taken.height()));
    }
}

} // namespace

std::vector<PanelStrip> panelStripsFrom(std::span<const std::uint32_t> numbers, QSize desktop) {
    std::vector<PanelStrip> strips;
    const bool isPartial = numbers.size() == numbersOfPartialStrut;
    if (!isPartial && numbers.size() != sides) return strips;
    for (std::size_t side = 0; side < sides; ++side) {
        const Qt::Edge edge = sidesInOrder[side];
        const bool isUpright = edge == Qt::LeftEdge || edge == Qt::RightEdge;
        const auto upTo = [](std::uint32_t number, int limit) {
            return int(std::min<std::uint32_t>(number, std::uint32_t(limit)));
        };
        const int thickness = upTo(numbers[side], isUpright ? desktop.width() : desktop.height());
        int begin = 0;
        int end = isUpright ? desktop.height() : desktop.width();
        if (isPartial) {
            const std::size_t first = sides + 2 * side;
            begin = upTo(numbers[first], end);
            // The property names the last pixel.
            end = numbers[first + 1] < std::uint32_t(end) ? int(numbers[first + 1]) + 1 : end;
        }
        const QRect area = stripArea(edge, thickness, begin, end, desktop);
        if (!area.isEmpty()) strips.push_back({edge, area});
    }
    return strips;
}

QMargins reservedBy(std::span<const PanelStrip> strips, const QRect& monitor) {
    QMargins margins;
    for (const PanelStrip& strip : strips)
        take(margins, strip, monitor);
    return margins;
}

} // namespace tessaline
