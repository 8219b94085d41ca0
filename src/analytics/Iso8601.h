#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>

#include <optional>

namespace tessaline {

/// The moment in UTC and whole seconds, as "2026-11-20T21:44:30Z". Always a text that
/// `fromIso8601` reads: years outside of 1 to 9999 become the nearest of these.
QByteArray toIso8601(const QDateTime& moment);

/// Reads a moment, with or without fractions of a second, with "Z" or an offset such as "+01:00",
/// "+0100" or "+01". None for anything else, a text without an offset included.
std::optional<QDateTime> fromIso8601(QByteArrayView text);

} // namespace tessaline
