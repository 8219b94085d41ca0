#pragma once

#include "appearance/SystemPalette.h"
#include "settings/ScrollRate.h"

#include <QColor>
#include <QString>

namespace tessaline {

/// What the statistics label says: the words of a text and how long it takes.
namespace ReadingStatistics {

/// The label's whole text, such as "312 words • ~2m30s".
QString labelText(qsizetype words, double seconds);

/// The same where the pace is promised: how long the rest takes, to the second, and how much too
/// late it will end, such as "312 words • ~1m12s • 20s late".
QString pacedLabelText(qsizetype words, double seconds, double secondsLate);

/// Its colour then, which says nothing.
inline constexpr QColor pacedLabelColor = SystemPalette::label;

/// The label's colour, which tells the rate.
QColor labelColor(ScrollRate rate);

} // namespace ReadingStatistics

} // namespace tessaline
