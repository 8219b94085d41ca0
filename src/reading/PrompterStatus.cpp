#include "reading/PrompterStatus.h"

#include "settings/ReadingOptions.h"

#include <cmath>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QString eyeLineText(const std::optional<double>& share) {
    return share ? QString::number(*share * 100.0) : u"second"_s;
}

} // namespace

void tellOptions(const ReadingOptions& options, QTime now, PrompterStatus& status) {
    status.pace = options.pace;
    status.wantedWordsPerMinute = options.wordsPerMinute;
    status.finish = options.finishAt ? timeOfDayText(*options.finishAt)
                                     : QString::number(options.finishMinutes) + u'm';
    status.finishTomorrow = options.finishAt && hasPassed(*options.finishAt, now);
    status.eyeLine = eyeLineText(options.eyeLine);
    status.guide = options.guide;
    status.guideLines = int(std::lround(options.guideLines));
    status.countdown = int(std::lround(options.countdownSeconds));
    status.atEnd = options.atEnd;
    status.glide = options.glide;
    status.mirror = options.mirror;
    status.opacity = int(std::lround(options.groundOpacity * 100.0));
    status.clickThrough = options.clickThrough;
    status.font = options.fontFamily.value_or(u"default"_s);
    status.lineSpacing = options.lineSpacing;
    status.distance = int(std::lround(options.readingDistance));
    status.mediaKeys = options.mediaKeys;
}

} // namespace tessaline
