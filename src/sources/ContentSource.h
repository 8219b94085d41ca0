#pragma once

#include <QString>

#include <functional>

namespace tessaline {

/// Where the prompter's text comes from. A source never reports an error while it is watched: what
/// goes wrong becomes a text that is delivered like any other.
class ContentSource {
public:
    /// Receives a whole text, on the main thread.
    using ContentCallback = std::function<void(const QString& text)>;

    virtual ~ContentSource() = default;

    /// Begins to deliver: the text of now, then each new one. A callback given before is dropped.
    virtual void startWatching(ContentCallback onChange) = 0;

    /// Stops delivering and drops the callback.
    virtual void stopWatching() = 0;
};

} // namespace tessaline
