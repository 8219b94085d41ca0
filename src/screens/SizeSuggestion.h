#pragma once

#include <QSizeF>
#include <QString>

#include <optional>

namespace tessaline {

/// The sizes of body text that a reader can choose, in points.
inline constexpr double leastFontSize = 10.0;
inline constexpr double mostFontSize = 30.0;

/// What a screen says of its size.
struct ScreenMeasures {
    QSizeF millimetres;
    QSizeF points;
    double pixelsPerPoint = 1.0;

    /// How large a point is; none where the screen says nothing, or nothing that can be true.
    std::optional<double> millimetresPerPoint() const;
};

/// A size of body text with which capital letters take up 20 minutes of arc, which is what people
/// read well for long.
struct SizeSuggestion {
    double wanted = 0.0; ///< points, whole
    double points = 0.0; ///< the same within the limits
    double centimetres = 0.0;
    bool isMeasured = false; ///< else the screen does not tell its size

    /// For eyes so many centimetres from the screen, and a font whose capital letters are so high,
    /// as a share of its size.
    static SizeSuggestion of(const ScreenMeasures& screen, double centimetres, double capitalShare);

    /// What is suggested and why, in one line.
    QString text() const;
};

} // namespace tessaline
