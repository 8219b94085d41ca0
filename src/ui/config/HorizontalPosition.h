#pragma once

#include <QString>

#include <optional>

namespace tessaline {

/// The whole part of a length, without the fraction, and the unit behind it: "600px".
QString lengthText(double value, const QString& unit);

/// How far the prompter is shifted sideways from the middle of its display, in points.
struct HorizontalPosition {
    /// Shifts up to here, either way, are taken for none.
    static constexpr double deadZone = 20.0;

    /// The farthest shift that keeps a prompter of this width on a display of that width; a fixed
    /// one when there is no display.
    static double maximumOffset(std::optional<double> displayWidth, double prompterWidth);

    /// 0 within the dead zone, else the offset itself.
    static double snapped(double offset);

    /// "Center", "-35px left" or "+35px right".
    static QString text(double offset);
};

} // namespace tessaline
