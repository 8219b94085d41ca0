#pragma once

#include "app/remote/RemoteRequest.h"

#include <QByteArray>

#include <optional>
#include <variant>

/// What passes between a command line and the running program: a JSON object on one line each way.
namespace tessaline::remoteMessage {

/// The most bytes of a message, line feed included.
inline constexpr qsizetype mostBytes = 65'536;

/// A request or an answer as a line, line feed included; empty when it is too long.
QByteArray encode(const RemoteRequest& request);
QByteArray encode(const RemoteAnswer& answer);

/// The request on a line, given without its line feed, or what is wrong with it.
std::variant<RemoteRequest, Refusal> decodeRequest(const QByteArray& line);

/// The answer on such a line; none when it is anything else or too long.
std::optional<RemoteAnswer> decodeAnswer(const QByteArray& line);

} // namespace tessaline::remoteMessage
