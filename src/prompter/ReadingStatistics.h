#pragma once

#include "settings/ScrollRate.h"

#include <QColor>
#include <QString>

namespace tessaline {

/// What the statistics label says: the words of a text and how long it takes.
namespace ReadingStatistics {

/// The label's whole text, such as "312 words • ~2m30s".
QString labelText(qsizetype words, double seconds);

/// The label's colour, which tells the rate.
QColor labelColor(ScrollRate rate);

} // namespace ReadingStatistics

} // namespace tessaline
