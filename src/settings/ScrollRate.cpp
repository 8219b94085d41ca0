#include "settings/ScrollRate.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QString rawValue(ScrollRate rate) {
    switch (rate) {
    case ScrollRate::slow:
        return u"slow"_s;
    case ScrollRate::medium:
        return u"medium"_s;
    case ScrollRate::fast:
        return u"fast"_s;
    }
    Q_UNREACHABLE();
}

std::optional<ScrollRate> scrollRateFromRawValue(QStringView raw) {
    for (const ScrollRate rate : allScrollRates)
        if (raw == rawValue(rate)) return rate;
    return std::nullopt;
}

QString title(ScrollRate rate) {
    switch (rate) {
    case ScrollRate::slow:
        return u"Slow"_s;
    case ScrollRate::medium:
        return u"Medium"_s;
    case ScrollRate::fast:
        return u"Fast"_s;
    }
    Q_UNREACHABLE();
}

double scrollFactor(ScrollRate rate) {
    switch (rate) {
    case ScrollRate::slow:
        return 4.8;
    case ScrollRate::medium:
        return 6.4;
    case ScrollRate::fast:
        return 9.6;
    }
    Q_UNREACHABLE();
}

double statsFactor(ScrollRate rate) {
    return 1.6 * scrollFactor(rate);
}

} // namespace tessaline
