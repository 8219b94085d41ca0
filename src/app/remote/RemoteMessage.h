#pragma once

#include <QByteArray>
#include <QJsonObject>

#include <optional>

/// What passes between a command line and the running program: a JSON object on one line each way.
namespace tessaline::remoteMessage {

/// The most bytes of a message, line feed included.
inline constexpr qsizetype mostBytes = 65'536;

/// The message as a line, line feed included; empty when it is too long.
QByteArray encode(const QJsonObject& message);

/// The object on a line, given without its line feed; none when it is anything else or too long.
std::optional<QJsonObject> decode(const QByteArray& line);

} // namespace tessaline::remoteMessage
