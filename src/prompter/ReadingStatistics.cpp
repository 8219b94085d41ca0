#include "prompter/ReadingStatistics.h"

#include "appearance/SystemPalette.h"
#include "reading/Pace.h"

#include <QtGlobal>

namespace tessaline::ReadingStatistics {

using namespace Qt::Literals::StringLiterals;

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
