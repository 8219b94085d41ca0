#pragma once

#include "LineView.h"

#include "support/PacedSession.h"

#include <vector>

namespace tessaline {

/// A text in lines that is read at a promised pace.
class PacedReading : public PacedSession {
public:
    /// What a frame showed.
    struct Frame {
        double seconds;  ///< since the beginning of time
        double position; ///< points
        double words;    ///< read so far
    };

    /// Lets time pass, with so many frames a second; returns what they showed.
    std::vector<Frame> run(double seconds, double framesPerSecond = 60.0);

    /// Lets time pass until the text stands at its end.
    std::vector<Frame> runToEnd(double atMostSeconds, double framesPerSecond = 60.0);

    bool atEnd() const { return view.position() >= view.distance(); }

    LineView view{*session, 50, 20.0};

private:
    Frame nextFrame(double framesPerSecond);
};

} // namespace tessaline
