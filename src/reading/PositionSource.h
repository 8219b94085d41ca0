#pragma once

namespace tessaline {

struct Pace;

/// What moves the reader of a session along without a hand, by telling the session how far
/// (`ReadingSession::moveBy`): from wherever the reader is, so that hands always win.
class PositionSource {
public:
    virtual ~PositionSource() = default;

    /// Begins to move the reader. Does nothing while it does.
    virtual void start() = 0;

    /// Leaves the reader where they are.
    virtual void stop() = 0;

    virtual void setPace(const Pace& pace) = 0;

    /// The reader is elsewhere, whoever moved them.
    virtual void readerMoved() {}
};

} // namespace tessaline
