#include "ui/config/HorizontalPosition.h"

#include <algorithm>
#include <cmath>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double offsetWithoutDisplay = 500.0;

} // namespace

double HorizontalPosition::maximumOffset(std::optional<double> displayWidth, double prompterWidth) {
    if (!displayWidth) return offsetWithoutDisplay;
    return std::max(0.0, (*displayWidth - prompterWidth) * 0.5);
}

double HorizontalPosition::snapped(double offset) {
    return std::abs(offset) <= deadZone ? 0.0 : offset;
}

QString lengthText(double value, const QString& unit) {
    return QString::number(int(value)) + unit;
}

// Both the sign and the word tell the direction, on purpose.
QString HorizontalPosition::text(double offset) {
    const int whole = int(offset);
    if (whole == 0) return u"Center"_s;
    if (whole < 0) return lengthText(offset, u"px left"_s);
    return u'+' + lengthText(offset, u"px right"_s);
}

} // namespace tessaline
