#include "reading/pace/ReadingPromise.h"

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

constexpr double secondsPerMinute = 60.0;
constexpr double millisecondsPerSecond = 1000.0;
constexpr int minutesPerHour = 60;

/// A rest of no words at all still takes a moment.
constexpr double leastWordsPerSecond = 1e-3;
constexpr double leastSeconds = 1e-3;

} // namespace

ReadingPromise::ReadingPromise(const ReadingOptions& borrowed, Clocks given)
    : options(borrowed), clocks(std::move(given)) {}

void ReadingPromise::begin() {
    if (!hasEnd()) return;
    if (!begun) begun = clocks.steady();
    if (options.finishAt && !endOnTheClock) endOnTheClock = nextMomentOf(*options.finishAt);
}

void ReadingPromise::forget() {
    begun.reset();
    endOnTheClock.reset();
}

/// Today's or, where that has passed, tomorrow's.
QDateTime ReadingPromise::nextMomentOf(TimeOfDay time) const {
    const QDateTime now = clocks.wall();
    const QTime onTheClock(time.minutes / minutesPerHour, time.minutes % minutesPerHour);
    const QDateTime today(now.date(), onTheClock);
    return today > now ? today : QDateTime(now.date().addDays(1), onTheClock);
}

double ReadingPromise::secondsUntilEnd() const {
    if (options.finishAt) {
        const QDateTime end = endOnTheClock.value_or(nextMomentOf(*options.finishAt));
        return double(clocks.wall().msecsTo(end)) / millisecondsPerSecond;
    }
    const double wanted = options.finishMinutes * secondsPerMinute;
    if (!begun) return wanted;
    return wanted - std::chrono::duration<double>(clocks.steady() - *begun).count();
}

double ReadingPromise::wordsPerSecond(double wordsLeft) const {
    if (!hasEnd()) return options.wordsPerMinute / secondsPerMinute;
    const double seconds = std::max(secondsUntilEnd(), leastSeconds);
    return std::clamp(wordsLeft / seconds, leastWordsPerSecond, mostWordsPerSecond);
}

double ReadingPromise::secondsLeft(double wordsLeft) const {
    if (hasEnd()) return std::max({secondsUntilEnd(), wordsLeft / mostWordsPerSecond, 0.0});
    return wordsLeft / wordsPerSecond(wordsLeft);
}

double ReadingPromise::secondsLate(double wordsLeft) const {
    if (!hasEnd() || wordsLeft <= 0.0) return 0.0;
    return std::max(wordsLeft / mostWordsPerSecond - secondsUntilEnd(), 0.0);
}

} // namespace tessaline
