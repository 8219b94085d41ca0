#include "screens/SizeSuggestion.h"

#include <QSize>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double minutesOfArc = 20.0;
constexpr double minutesPerHalfTurn = 180.0 * 60.0;
constexpr double millimetresPerInch = 25.4;
constexpr double assumedDotsPerInch = 96.0;

constexpr double fewestDotsPerInch = 30.0; // a wall of light-emitting diodes
constexpr double mostDotsPerInch = 700.0;
constexpr double greatestSkew = 1.25; // of pixels

/// Displays that do not know their size tell its proportions, in one unit or another.
constexpr std::array proportions{QSize(160, 90), QSize(160, 100), QSize(16, 9), QSize(16, 10)};

double capitalMillimetres(double centimetres) {
    return 10.0 * centimetres * 2.0 *
           std::tan(minutesOfArc / minutesPerHalfTurn * std::numbers::pi / 2.0);
}

bool isPlausible(double dotsPerInch) {
    return dotsPerInch >= fewestDotsPerInch && dotsPerInch <= mostDotsPerInch;
}

} // namespace

std::optional<double> ScreenMeasures::millimetresPerPoint() const {
    if (millimetres.isEmpty() || points.isEmpty()) return {};
    const QSize whole = millimetres.toSize();
    if (std::find(proportions.begin(), proportions.end(), whole) != proportions.end()) return {};
    const double across = millimetres.width() / points.width();
    const double down = millimetres.height() / points.height();
    if (std::max(across, down) > greatestSkew * std::min(across, down)) return {};
    if (!isPlausible(millimetresPerInch * pixelsPerPoint / across)) return {};
    return (across + down) / 2.0;
}

SizeSuggestion SizeSuggestion::of(const ScreenMeasures& screen, double centimetres,
                                  double capitalShare) {
    const std::optional<double> measured = screen.millimetresPerPoint();
    const double perPoint = measured.value_or(millimetresPerInch / assumedDotsPerInch);
    SizeSuggestion suggestion{.centimetres = centimetres, .isMeasured = measured.has_value()};
    suggestion.wanted = std::round(capitalMillimetres(centimetres) / perPoint / capitalShare);
    suggestion.points = std::clamp(suggestion.wanted, leastFontSize, mostFontSize);
    return suggestion;
}

QString SizeSuggestion::text() const {
    QString text = u"%1 minutes of arc at %2 cm on %3: %4 points"_s.arg(minutesOfArc)
                       .arg(centimetres)
                       .arg(isMeasured ? u"this screen"_s : u"a screen of 96 dots per inch"_s)
                       .arg(wanted);
    if (points < wanted) text += u"; %1 are the most"_s.arg(points);
    if (points > wanted) text += u"; %1 are the least"_s.arg(points);
    if (!isMeasured) text += u" (this one does not tell its size)"_s;
    return text;
}

} // namespace tessaline
