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

auto inTwentieths(double least, double most) {
    // Divided last: 0.35 is the number that is nearest to it, and no sum of steps.
    return [=](double& value) { value = std::clamp(std::round(value * 20.0) / 20.0, least, most); };
}

void dropEmpty(std::optional<QString>& text) {
    if (text && text->isEmpty()) text.reset();
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
        settingsKey("mirror", &Options::mirror),
        settingsKey("groundOpacity", &Options::groundOpacity,
                    inTwentieths(Options::leastGroundOpacity, 1.0)),
        settingsKey("clickThrough", &Options::clickThrough),
        settingsKey("fontFamily", &Options::fontFamily, dropEmpty),
        settingsKey("lineSpacing", &Options::lineSpacing,
                    inTwentieths(Options::leastLineSpacing, Options::mostLineSpacing)),
        settingsKey("readingDistance", &Options::readingDistance,
                    within(Options::leastReadingDistance, Options::mostReadingDistance,
                           Options::readingDistanceStep)),
        settingsKey("mediaKeys", &Options::mediaKeys),
        settingsKey("remotePage", &Options::remotePage),
        settingsKey("remotePort", &Options::remotePort,
                    within(Options::leastPort, Options::mostPort, 1.0)),
        settingsKey("remoteAddress", &Options::remoteAddress, dropEmpty),
    });
    return table;
}

} // namespace tessaline
