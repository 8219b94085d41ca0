#pragma once

#include "settings/ReadingChoices.h"
#include "settings/TimeOfDay.h"

#include <QString>

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
    static constexpr double leastGroundOpacity = 0.3;
    static constexpr double leastLineSpacing = 1.0;
    static constexpr double mostLineSpacing = 2.0;
    static constexpr double leastReadingDistance = 40.0;
    static constexpr double mostReadingDistance = 200.0;
    static constexpr double readingDistanceStep = 5.0;
    static constexpr double twentieth = 0.05; ///< the step of the opacity and the line spacing

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
    Mirroring mirror = Mirroring::none;
    double groundOpacity = 1.0;        ///< of the black behind the text
    bool clickThrough = false;         ///< the mouse works on what is below the text
    std::optional<QString> fontFamily; ///< none: the system's
    double lineSpacing = 1.0;          ///< a line's height as a multiple of the usual one
    double readingDistance = 60.0;     ///< centimetres from the eyes to the screen
    bool mediaKeys = false;            ///< drive the prompter

    static constexpr double leastPort = 1024.0;
    static constexpr double mostPort = 65535.0;

    bool remotePage = false;              ///< phones may drive it by a page
    double remotePort = 47865.0;          ///< whole
    std::optional<QString> remoteAddress; ///< of this machine, for other devices; none: for itself

    bool operator==(const ReadingOptions&) const = default;
};

/// The keys of the file of reading options.
const SettingsTable<ReadingOptions>& readingOptionsTable();

} // namespace tessaline
