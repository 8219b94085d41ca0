#pragma once

namespace tessaline {

/// A rectangle in points. `x` and `y` name its bottom left corner: y grows upwards.
struct Rect {
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;

    constexpr double minX() const { return x; }
    constexpr double midX() const { return x + width * 0.5; }
    constexpr double maxX() const { return x + width; }
    constexpr double minY() const { return y; }
    constexpr double midY() const { return y + height * 0.5; }
    constexpr double maxY() const { return y + height; }

    bool operator==(const Rect&) const = default;
};

} // namespace tessaline
