#include "reading/Pace.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The speed at which a rate's factor is reached.
constexpr double speedOfFactor = 2.5;

constexpr double secondsPerStep = 5.0;
constexpr qint64 wholeMinute = 60;

} // namespace

double Pace::pointsPerSecond() const {
    return scrollFactor(rate) * (speed / speedOfFactor);
}

double Pace::secondsFor(double points) const {
    const double steps = std::round(points / statsFactor(rate) / secondsPerStep);
    if (!std::isfinite(steps)) qFatal("The reading time is not a finite number");
    return steps * secondsPerStep;
}

QString timeText(double seconds) {
    return exactTimeText(std::max(seconds, secondsPerStep));
}

QString exactTimeText(double seconds) {
    const auto shown = qint64(seconds);
    if (shown < wholeMinute) return u"%1s"_s.arg(shown);
    const qint64 minutes = shown / wholeMinute;
    const qint64 rest = shown % wholeMinute;
    return rest == 0 ? u"%1m"_s.arg(minutes) : u"%1m%2s"_s.arg(minutes).arg(rest);
}

} // namespace tessaline
