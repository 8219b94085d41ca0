#pragma once

#include "settings/ReadingChoices.h"
#include "settings/TimeOfDay.h"

#include <optional>

namespace tessaline {

template <typename Values>
class SettingsTable;

/// How the user wants to read: a plain value. A new one holds the defaults, with which nothing is
/// different from a prompter that does not know these choices.
struct ReadingOptions {
    static constexpr double leastWordsPerMinute = 60.0;
    static constexpr double mostWordsPerMinute = 300.0;
    static constexpr double wordsPerMinuteStep = 5.0;
    static constexpr double leastFinishMinutes = 0.5;
    static constexpr double mostFinishMinutes = 600.0;
    static constexpr double leastEyeLine = 0.25;
    static constexpr double mostEyeLine = 0.5;
    static constexpr double mostGuideLines = 2.0;
    static constexpr double mostCountdownSeconds = 10.0;

    PaceMode pace = PaceMode::speed;
    double wordsPerMinute = 150.0;
    double finishMinutes = 12.0;       ///< from the start of reading
    std::optional<TimeOfDay> finishAt; ///< in place of the minutes
    std::optional<double> eyeLine;     ///< share of the text's height; none: the second line
    ReadingGuide guide = ReadingGuide::none;
    double guideLines = 1.0;       ///< of the band: 1 or 2
    double countdownSeconds = 0.0; ///< whole
    ScriptEnd atEnd = ScriptEnd::stand;
    bool glide = false; ///< jumps are eased

    bool operator==(const ReadingOptions&) const = default;
};

/// The keys of the file of reading options.
const SettingsTable<ReadingOptions>& readingOptionsTable();

} // namespace tessaline
