#include "settings/PaceStep.h"

#include "settings/ReadingOptions.h"

namespace tessaline {

namespace {

constexpr double stepInMinutes = 0.5;
constexpr int minutesPerDay = 24 * 60;

/// A minute earlier or later, around the clock.
TimeOfDay neighbour(TimeOfDay time, PaceStep step) {
    const int minutes = time.minutes + (step == PaceStep::faster ? -1 : 1);
    return {(minutes + minutesPerDay) % minutesPerDay};
}

} // namespace

void stepPace(ReadingOptions& options, PaceStep step, QTime now) {
    const double direction = step == PaceStep::faster ? 1.0 : -1.0;
    if (options.pace == PaceMode::words) {
        options.wordsPerMinute += direction * ReadingOptions::wordsPerMinuteStep;
    } else if (options.pace == PaceMode::finish && options.finishAt) {
        const TimeOfDay next = neighbour(*options.finishAt, step);
        const bool isTooEarly =
            step == PaceStep::faster && !hasPassed(*options.finishAt, now) && hasPassed(next, now);
        if (!isTooEarly) options.finishAt = next;
    } else if (options.pace == PaceMode::finish) {
        options.finishMinutes -= direction * stepInMinutes;
    }
}

} // namespace tessaline
