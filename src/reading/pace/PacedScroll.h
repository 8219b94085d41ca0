#pragma once

#include "reading/PositionSource.h"
#include "reading/pace/FrameClock.h"
#include "reading/pace/PaceKeeper.h"
#include "reading/pace/PacePlan.h"

#include <cstddef>
#include <optional>

namespace tessaline {

class ReadingSession;

/// Moves the text so that the words pass at the rate that the session promises, beginning and
/// ending softly.
class PacedScroll final : public PositionSource {
public:
    /// Everything is borrowed; the session owns this.
    PacedScroll(ReadingSession& session, DisplayLinkMaker& links, TimerMaker& timers,
                MainQueue& queue, Clocks clocks);

    void start() override;
    void stop() override;
    void setPace(const Pace& pace) override;
    void readerMoved() override;

private:
    void frame(double seconds);
    double softness(double seconds);
    bool wasMovedByHand() const;
    bool isPlanned() const;
    void makePlan();
    double distance(double seconds);
    double correction(double placeInPlan, double words) const;
    double placeInPlan() const;
    double wordsAt(double placeInPlan) const;

    ReadingSession& session;
    FrameClock clock;
    PaceKeeper keeper;
    std::optional<PacePlan> plan;
    double plannedRate = 0.0;
    double plannedUntil = 0.0; ///< height up to which the plan is good
    std::size_t plannedParagraph = 0;
    double plannedTop = 0.0; ///< of the paragraph, as of the plan
    int plannedLayout = 0;
    double wordsAbovePlan = 0.0;
    double wordsInAll = 0.0;
    std::optional<double> wordsExpected; ///< unless a hand moved the reader
    double softStart = 0.0;              ///< seconds of motion, up to what a soft start takes
    bool isStarted = false;
    bool isStopping = false;
};

} // namespace tessaline
