#pragma once

#include "reading/Clocks.h"
#include "settings/ReadingOptions.h"

#include <optional>

namespace tessaline {

/// How fast a text has to pass for what the reading options promise: a rate, or a moment at which
/// the end is reached. Words are spoken ones, as fractions within a line.
class ReadingPromise {
public:
    /// Nobody speaks faster.
    static constexpr double mostWordsPerSecond = ReadingOptions::mostWordsPerMinute / 60.0;

    /// Borrows the options and takes the clocks over.
    ReadingPromise(const ReadingOptions& options, Clocks clocks);

    /// Reading begins or goes on: from the first time on, the moment of the end stands fast.
    void begin();

    /// What was promised so far is settled: the next beginning is a new one.
    void forget();

    /// The rate at which the rest has to pass, above 0.
    double wordsPerSecond(double wordsLeft) const;

    /// How long the rest takes. May be more than what is left until the promised end.
    double secondsLeft(double wordsLeft) const;

    /// By how much the end will be too late; 0 where it will not, or where no end is promised.
    double secondsLate(double wordsLeft) const;

    /// Whether the promise is a moment at which the end is reached.
    bool hasEnd() const { return options.pace == PaceMode::finish; }

private:
    QDateTime nextMomentOf(TimeOfDay time) const;
    double secondsUntilEnd() const;

    const ReadingOptions& options;
    Clocks clocks;
    std::optional<Clocks::TimePoint> begun;
    std::optional<QDateTime> endOnTheClock;
};

} // namespace tessaline
