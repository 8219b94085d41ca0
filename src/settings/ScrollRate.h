#pragma once

#include <QString>
#include <QStringView>

#include <array>
#include <optional>

namespace tessaline {

/// The scale that the auto-scroll speed is multiplied with.
enum class ScrollRate { slow, medium, fast };

/// Every rate, in declaration order.
inline constexpr std::array allScrollRates{ScrollRate::slow, ScrollRate::medium, ScrollRate::fast};

/// The string that stands for the rate in the configuration file and in usage events.
QString rawValue(ScrollRate rate);

/// The rate with exactly this raw value (case-sensitive), or none.
std::optional<ScrollRate> scrollRateFromRawValue(QStringView raw);

/// The name shown to the user.
QString title(ScrollRate rate);

/// Points per second of auto-scroll at speed 2.5.
double scrollFactor(ScrollRate rate);

/// Divisor of the remaining height in the reading-time estimate: 1.6 × `scrollFactor`.
double statsFactor(ScrollRate rate);

} // namespace tessaline
