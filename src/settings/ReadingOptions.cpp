#include "settings/ReadingOptions.h"

#include "settings/SettingsTable.h"

#include <algorithm>
#include <cmath>

namespace tessaline {

namespace {

using Options = ReadingOptions;

auto within(double least, double most, double step) {
    return [=](double& value) { value = std::clamp(std::round(value / step) * step, least, most); };
}

} // namespace

const SettingsTable<ReadingOptions>& readingOptionsTable() {
    static const SettingsTable<Options> table({
        settingsKey("pace", &Options::pace),
        settingsKey("wordsPerMinute", &Options::wordsPerMinute,
                    within(Options::leastWordsPerMinute, Options::mostWordsPerMinute,
                           Options::wordsPerMinuteStep)),
        settingsKey("finishMinutes", &Options::finishMinutes,
                    [](double& minutes) {
                        minutes = std::clamp(minutes, Options::leastFinishMinutes,
                                             Options::mostFinishMinutes);
                    }),
        settingsKey("finishAt", &Options::finishAt),
        settingsKey("eyeLine", &Options::eyeLine,
                    [](std::optional<double>& share) {
                        if (share)
                            share = std::clamp(*share, Options::leastEyeLine, Options::mostEyeLine);
                    }),
        settingsKey("guide", &Options::guide),
        settingsKey("guideLines", &Options::guideLines, within(1.0, Options::mostGuideLines, 1.0)),
        settingsKey("countdownSeconds", &Options::countdownSeconds,
                    within(0.0, Options::mostCountdownSeconds, 1.0)),
        settingsKey("atEnd", &Options::atEnd),
        settingsKey("glide", &Options::glide),
    });
    return table;
}

} // namespace tessaline
