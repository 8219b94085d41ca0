#pragma once

#include "remote/web/HttpRequest.h"

#include <QByteArrayView>

#include <variant>

namespace tessaline {

/// The bytes may be the beginning of a request.
struct UnfinishedRequest {};

/// The bytes are no request that a browser would make of us.
struct WrongRequest {};

using HttpReading = std::variant<UnfinishedRequest, WrongRequest, HttpRequest>;

/// Reads requests of HTTP/1.1 as browsers send them, and refuses whatever else the protocol has:
/// what two readers could read differently, nobody reads. Any thread.
namespace httpRequestReader {

inline constexpr qsizetype longestHead = qsizetype{16} << 10;
inline constexpr qsizetype longestBody = 256;
inline constexpr qsizetype longestPath = 256;
inline constexpr std::size_t mostHeaders = 64;

/// No more bytes than these are ever needed to tell what they are.
inline constexpr qsizetype mostBytes = longestHead + longestBody;

/// Reads one request, all that a connection has sent so far. Nothing may follow it: whoever asks us
/// waits for the answer.
HttpReading read(QByteArrayView bytes);

} // namespace httpRequestReader

} // namespace tessaline
