#pragma once

#include "remote/web/HttpReply.h"

#include <variant>

namespace tessaline {

/// The connection may become a web socket.
struct WebSocketPass {};

/// What comes of a request.
using WebAnswer = std::variant<HttpReply, WebSocketPass>;

} // namespace tessaline
