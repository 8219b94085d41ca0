#pragma once

#include "settings/ScrollRate.h"

#include <QColor>
#include <QString>

namespace tessaline {

/// What the statistics label says: the words of a text and how long the rest of it takes.
namespace ReadingStatistics {

/// The estimate in seconds for so many points still to scroll, in steps of five seconds. The
/// points must be a finite number.
double remainingSeconds(double remainingPoints, ScrollRate rate);

/// An estimate as text, at least five seconds: "45s", "2m30s", "3m".
QString timeText(double seconds);

/// The label's whole text, such as "312 words • ~2m30s".
QString labelText(qsizetype words, double seconds);

/// The label's colour, which tells the rate.
QColor labelColor(ScrollRate rate);

} // namespace ReadingStatistics

} // namespace tessaline
