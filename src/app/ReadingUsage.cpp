#include "app/ReadingUsage.h"

#include "analytics/UsageRecorder.h"

#include <QStringList>

#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Option {
    QString name;
    QString value;
};

/// When somebody's talk ends is nobody's business, only that it has such a time; which fonts they
/// have and where in their network they are is not either.
std::vector<Option> optionsOf(const ReadingOptions& options) {
    return {
        {u"pace"_s, rawValue(options.pace)},
        {u"wordsPerMinute"_s, QString::number(options.wordsPerMinute)},
        {u"finishMinutes"_s, QString::number(options.finishMinutes)},
        {u"finishAt"_s, booleanText(options.finishAt.has_value())},
        {u"eyeLine"_s, options.eyeLine ? QString::number(*options.eyeLine) : u"second"_s},
        {u"guide"_s, rawValue(options.guide)},
        {u"guideLines"_s, QString::number(options.guideLines)},
        {u"countdownSeconds"_s, QString::number(options.countdownSeconds)},
        {u"atEnd"_s, rawValue(options.atEnd)},
        {u"glide"_s, booleanText(options.glide)},
        {u"mirror"_s, rawValue(options.mirror)},
        {u"groundOpacity"_s, QString::number(options.groundOpacity)},
        {u"clickThrough"_s, booleanText(options.clickThrough)},
        {u"fontFamily"_s, booleanText(options.fontFamily.has_value())},
        {u"lineSpacing"_s, QString::number(options.lineSpacing)},
        {u"readingDistance"_s, QString::number(options.readingDistance)},
        {u"mediaKeys"_s, booleanText(options.mediaKeys)},
        {u"remotePage"_s, booleanText(options.remotePage)},
        {u"remotePort"_s, booleanText(options.remotePort != ReadingOptions().remotePort)},
        {u"remoteAddress"_s, booleanText(options.remoteAddress.has_value())},
    };
}

} // namespace

ReadingUsage::ReadingUsage(ReadingSettings& settings, UsageRecorder& recorder)
    : observation(settings.observe([&settings, &recorder](const ReadingOptions& before) {
        const auto was = optionsOf(before);
        const auto is = optionsOf(settings.values());
        for (std::size_t i = 0; i < is.size(); ++i)
            if (is[i].value != was[i].value) recorder.trackSettingChanged(is[i].name, is[i].value);
    })) {}

} // namespace tessaline
