#pragma once

#include "platform/HttpPoster.h"

namespace tessaline {

/// Posts over a connection of its own each time, encrypted for "https". Not the toolkit's network
/// manager, which repeats a POST by itself when the connection closes, tells the server the user's
/// language, and waits for the whole head of an answer.
class QtHttpPoster final : public HttpPoster {
public:
    std::unique_ptr<Post> post(const QUrl& address, const QByteArray& body,
                               Handler handler) override;
};

} // namespace tessaline
