#include "prompter/ReadingStatistics.h"

#include "appearance/SystemPalette.h"
#include "reading/Pace.h"

#include <QtGlobal>

namespace tessaline::ReadingStatistics {

using namespace Qt::Literals::StringLiterals;

QString labelText(qsizetype words, double seconds) {
    return u"%1 words • ~%2"_s.arg(words).arg(timeText(seconds));
}

QString pacedLabelText(qsizetype words, double seconds, double secondsLate) {
    const QString text = u"%1 words • ~%2"_s.arg(words).arg(exactTimeText(seconds));
    return secondsLate < 1.0 ? text : text + u" • %1 late"_s.arg(exactTimeText(secondsLate));
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
