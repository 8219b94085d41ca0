#include "prompter/ReadingStatistics.h"

#include "appearance/SystemPalette.h"

#include <QtGlobal>

#include <algorithm>
#include <cmath>

namespace tessaline::ReadingStatistics {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double secondsPerUnit = 5.0;
constexpr qint64 secondsPerMinute = 60;

} // namespace

double remainingSeconds(double remainingPoints, ScrollRate rate) {
    const double units = std::round(remainingPoints / statsFactor(rate) / secondsPerUnit);
    if (!std::isfinite(units)) qFatal("The reading time is not a finite number");
    return units * secondsPerUnit;
}

QString timeText(double seconds) {
    const auto shown = qint64(std::max(seconds, secondsPerUnit));
    if (shown < secondsPerMinute) return u"%1s"_s.arg(shown);
    const qint64 minutes = shown / secondsPerMinute;
    const qint64 rest = shown % secondsPerMinute;
    return rest == 0 ? u"%1m"_s.arg(minutes) : u"%1m%2s"_s.arg(minutes).arg(rest);
}

QString labelText(qsizetype words, double seconds) {
    return u"%1 words • ~%2"_s.arg(words).arg(timeText(seconds));
}

QColor labelColor(ScrollRate rate) {
    switch (rate) {
    case ScrollRate::slow:
        return SystemPalette::green;
    case ScrollRate::medium:
        return SystemPalette::yellow;
    case ScrollRate::fast:
        return SystemPalette::red;
    }
    Q_UNREACHABLE();
}

} // namespace tessaline::ReadingStatistics
