#pragma once

#include "reading/MarkdownScript.h"
#include "reading/ReadingSession.h"
#include "reading/pace/PacedScroll.h"
#include "settings/PersistedSettings.h"
#include "settings/ReadingOptions.h"
#include "support/FakeDisplayLinkMaker.h"
#include "support/FakeMainQueue.h"
#include "support/FakeTimerMaker.h"

#include <QDateTime>
#include <QString>

#include <chrono>
#include <cmath>
#include <cstdint>
#include <memory>

namespace tessaline {

/// A session that is read at a promised pace, frame by frame, as fast as the test can. Time passes
/// with the frames.
class PacedSession {
public:
    PacedSession() {
        options.pace = PaceMode::words;
        links.clockFrequency = ticksPerSecond;
        session->setSource(std::make_unique<PacedScroll>(*session, links, timers, queue, clocks()));
    }
    PacedSession(const PacedSession&) = delete;
    PacedSession& operator=(const PacedSession&) = delete;

    void show(const QString& markdown) {
        constexpr double fontSize = 16.0;
        session->setContent({std::make_shared<const Script>(markdownScript(markdown, fontSize))});
    }

    void play() {
        settings.autoScrollEnabled = true;
        session->start();
    }

    void pause() {
        settings.autoScrollEnabled = false;
        session->stop();
    }

    void showFrame(double framesPerSecond = 60.0) {
        time += 1.0 / framesPerSecond;
        links.refresh(std::uint64_t(std::llround(time * ticksPerSecond)));
        queue.runAll();
    }

    /// Seconds since the beginning of time.
    double now() const { return time; }

    PersistedSettings settings;
    ReadingOptions options;
    FakeDisplayLinkMaker links;
    FakeTimerMaker timers;
    FakeMainQueue queue;
    const QDateTime wallTime{QDate(2026, 1, 5), QTime(12, 0)}; ///< at the beginning of time
    const std::shared_ptr<ReadingSession> session =
        std::make_shared<ReadingSession>(settings, options, clocks());

private:
    /// Frames at 60 and at 144 hertz take a whole number of them.
    static constexpr double ticksPerSecond = 7.2e6;

    Clocks clocks() {
        using std::chrono::duration_cast;
        const auto steady = [this] {
            const std::chrono::duration<double> passed(time);
            return Clocks::TimePoint(duration_cast<Clocks::TimePoint::duration>(passed));
        };
        return {.steady = steady,
                .wall = [this] { return wallTime.addMSecs(qint64(time * 1000)); }};
    }

    double time = 0.0;
};

} // namespace tessaline
