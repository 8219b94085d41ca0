#pragma once

#include "settings/ScrollRate.h"

#include <QString>

namespace tessaline {

/// How fast a text passes, and how long it takes: what moves the text and what tells of it ask
/// here.
struct Pace {
    double speed = 0.0; ///< as in the settings
    ScrollRate rate = ScrollRate::medium;

    /// How far the text moves in a second.
    double pointsPerSecond() const;

    /// The estimate for so many points, a finite number, in steps of five seconds. It follows the
    /// rate and no speed, so that it also says something while the text stands still.
    double secondsFor(double points) const;
};

/// An estimate as text, at least five seconds: "45s", "2m30s", "3m".
QString timeText(double seconds);

/// A time as text, to the second: "0s", "45s", "2m30s", "3m".
QString exactTimeText(double seconds);

} // namespace tessaline
