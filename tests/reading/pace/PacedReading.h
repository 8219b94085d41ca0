#pragma once

#include "LineView.h"

#include "reading/ReadingSession.h"
#include "settings/PersistedSettings.h"
#include "settings/ReadingOptions.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeMainQueue.h"
#include "support/FakeTimerMaker.h"

#include <QDateTime>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace tessaline {

/// A text that is read at a promised pace, frame by frame, as fast as the test can.
class PacedReading {
public:
    /// What a frame showed.
    struct Frame {
        double seconds;  ///< since the beginning of time
        double position; ///< points
        double words;    ///< read so far
    };

    PacedReading();
    PacedReading(const PacedReading&) = delete;
    PacedReading& operator=(const PacedReading&) = delete;

    void show(const QString& markdown);

    /// Starts or stops the text as the settings do.
    void play();
    void pause();

    /// Lets time pass, with so many frames a second; returns what they showed.
    std::vector<Frame> run(double seconds, double framesPerSecond = 60.0);

    /// Plays until the text stands at its end.
    std::vector<Frame> runToEnd(double atMostSeconds, double framesPerSecond = 60.0);

    double now() const { return time; }
    bool atEnd() const { return view->position() >= view->distance(); }

    PersistedSettings settings;
    ReadingOptions options;
    FakeDisplayLinkMaker links;
    FakeTimerMaker timers;
    FakeMainQueue queue;
    QDateTime wallTime; ///< at the beginning of time
    std::unique_ptr<ReadingSession> session;
    std::unique_ptr<LineView> view;

private:
    Clocks clocks();
    Frame nextFrame(double framesPerSecond);

    double time = 0.0;
};

} // namespace tessaline
