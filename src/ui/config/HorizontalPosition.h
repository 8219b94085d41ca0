#pragma once

#include <QString>

#include <optional>

namespace tessaline {

/// How far the prompter may be shifted sideways, and how sizes and positions are put in words. Pure
/// functions; all lengths in points.
struct PositionRange {
    /// Shifts up to here, either way, are taken for none.
    static constexpr double deadZone = 20.0;

    /// The farthest shift that keeps a prompter of this width on a display of that width; a fixed
    /// one when there is no display.
    static double maximumOffset(std::optional<double> displayWidth, double prompterWidth);

    /// 0 within the dead zone, else the offset itself.
    static double snapped(double offset);

    /// The whole part, without the fraction, and the unit behind it: "600px".
    static QString valueText(double value, const QString& unit);

    /// "Center", "-35px left" or "+35px right".
    static QString positionText(double offset);
};

} // namespace tessaline
