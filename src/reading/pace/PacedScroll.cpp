#include "reading/pace/PacedScroll.h"

#include "reading/ReadingSession.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace tessaline {

namespace {

/// What is planned at once: points before and behind the reader, of which those in the last seconds
/// are only there for what comes before them to be even.
constexpr double pointsBehind = 300.0;
constexpr double pointsAhead = 1200.0;
constexpr double secondsForEvenness = 13.0;
constexpr double leastSecondsPlanned = 5.0;

/// After a standstill of the machine the text goes on where it was.
constexpr double longestFrame = 0.1;

constexpr double softSeconds = 0.3;

/// A reader who is so many words elsewhere was moved by a hand.
constexpr double wordsOfAHand = 0.02;

constexpr double leastSecondsLeft = 0.05;

/// What holds no word at all moves at a speed at which it can be looked at.
constexpr double speedOfPictures = 20.0;

double smoothStep(double share) {
    return share * share * (3 - 2 * share);
}

} // namespace

PacedScroll::PacedScroll(ReadingSession& reader, DisplayLinkMaker& links, TimerMaker& timers,
                         MainQueue& queue, Clocks clocks)
    : session(reader)
    , clock(links, timers, queue, std::move(clocks), [this](double seconds) { frame(seconds); }) {}

void PacedScroll::start() {
    isStarted = true;
    isStopping = false;
    wordsExpected.reset();
    if (!session.isAtEnd()) clock.start();
}

void PacedScroll::stop() {
    isStarted = false;
    isStopping = clock.running() && softStart > 0.0;
    if (!isStopping) clock.stop();
}

void PacedScroll::setPace(const Pace&) {
    plan.reset();
}

void PacedScroll::readerMoved() {
    if (isStarted && !clock.running() && !session.isAtEnd()) session.start();
}

void PacedScroll::frame(double seconds) {
    seconds = std::min(seconds, longestFrame);
    const double share = softness(seconds);
    const bool stands = session.isAtEnd() || (isStopping && softStart <= 0.0);
    if (!stands) {
        if (wasMovedByHand()) {
            plan.reset();
            wordsExpected.reset();
        }
        if (!isPlanned()) makePlan();
        session.advance(distance(seconds) * share);
        if (plan) wordsExpected = wordsAt(placeInPlan());
        return;
    }
    clock.stop();
    softStart = 0.0;
    wordsExpected.reset();
}

/// How fast the text is while it starts or stops, as a share of what it will be or was.
double PacedScroll::softness(double seconds) {
    softStart = isStopping ? softStart - seconds : std::min(softStart + seconds, softSeconds);
    return smoothStep(std::clamp(softStart / softSeconds, 0.0, 1.0));
}

double PacedScroll::placeInPlan() const {
    return session.readerPosition() - (session.topOf(plannedParagraph) - plannedTop);
}

double PacedScroll::wordsAt(double y) const {
    return wordsAbovePlan + plan->wordsAbove(y);
}

bool PacedScroll::wasMovedByHand() const {
    return plan && plannedLayout == session.layoutVersion() && wordsExpected &&
           std::abs(*wordsExpected - wordsAt(placeInPlan())) > wordsOfAHand;
}

bool PacedScroll::isPlanned() const {
    if (!plan || plannedLayout != session.layoutVersion()) return false;
    const double y = placeInPlan();
    return y >= plan->top() && y < plannedUntil;
}

void PacedScroll::makePlan() {
    const auto progress = session.progress();
    const double words = progress->wordsRead();
    wordsInAll = progress->wordsInAll();
    const double rate = session.currentPromise().wordsPerSecond(wordsInAll - words);
    const bool goesOn = wordsExpected && std::abs(*wordsExpected - words) < wordsOfAHand;
    // A rate that follows from what is left has made up for what was missing.
    if (!goesOn) keeper.begin(words);
    if (goesOn && rate != plannedRate) keeper.promiseFrom(words);
    plannedRate = rate;
    for (double ahead = pointsAhead;; ahead *= 2) {
        const double y = session.readerPosition();
        const auto [lines, above] = progress->linesBetween(y - pointsBehind, y + ahead);
        plan.emplace(lines, rate);
        wordsAbovePlan = above;
        const bool reachesEnd = plan->bottom() >= session.lastReaderPosition();
        plannedUntil = reachesEnd ? std::numeric_limits<double>::infinity()
                                  : plan->placeAfter(plan->bottom(), -secondsForEvenness);
        if (reachesEnd || plannedUntil > plan->placeAfter(y, leastSecondsPlanned)) break;
    }
    plannedLayout = session.layoutVersion();
    plannedParagraph = session.place().paragraph;
    plannedTop = session.topOf(plannedParagraph);
}

double PacedScroll::distance(double seconds) {
    if (wordsInAll <= 0.0) {
        const double rest = session.lastReaderPosition() - session.readerPosition();
        const double promised = session.currentPromise().secondsLeft(0.0);
        return seconds * (promised > 0.0 ? rest / promised : speedOfPictures);
    }
    const double y = placeInPlan();
    const double words = wordsAt(y);
    return keeper.advance(*plan, y, correction(y, words), plannedRate, seconds);
}

double PacedScroll::correction(double y, double words) const {
    const ReadingPromise& promise = session.currentPromise();
    const bool seesEnd = plannedUntil == std::numeric_limits<double>::infinity();
    if (!promise.hasEnd() || !seesEnd) return keeper.correction(words, plannedRate);
    // What is left is known to the last line: it takes what time is left, but nobody speaks faster
    // than that.
    const double end = y + session.lastReaderPosition() - session.readerPosition();
    const double planned = plan->secondsBetween(y, end);
    const double left = std::max(promise.secondsLeft(0.0), leastSecondsLeft);
    return std::min(planned / left, ReadingPromise::mostWordsPerSecond / plannedRate);
}

} // namespace tessaline
