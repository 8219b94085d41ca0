#pragma once

#include <QByteArray>
#include <QDateTime>
#include <QMap>
#include <QString>

#include <optional>

namespace tessaline {

/// One usage signal, as the telemetry service takes it.
struct TDSignal {
    QDateTime receivedAt;
    QString appID;
    QString clientUser; ///< SHA-256 of the user's identifier, 64 lower-case hexadecimal digits
    QString sessionID;
    QString type; ///< what happened, such as "content_loaded"
    std::optional<double> floatValue;
    QMap<QString, QString> payload;
    QString isTestMode; ///< "true" or "false"
};

/// The signal as a JSON object on one line: keys in the order of the fields, "floatValue" left out
/// when there is none. None for a number that JSON has no form for.
std::optional<QByteArray> encode(const TDSignal& signal);

} // namespace tessaline
