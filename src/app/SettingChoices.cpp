#include "app/SettingChoices.h"

#include "analytics/UsageRecorder.h"
#include "settings/AppSettings.h"

#include <algorithm>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

SettingChoices::SettingChoices(AppSettings& appSettings, UsageRecorder& usageRecorder,
                               Effects whatFollows)
    : settings(appSettings), recorder(usageRecorder), effects(std::move(whatFollows)) {}

void SettingChoices::setScrollSpeed(double speed) {
    settings.setScrollSpeed(speed);
    recorder.trackSettingChanged(u"scrollSpeed"_s, QString::number(settings.scrollSpeed()));
}

void SettingChoices::setScrollRate(ScrollRate rate) {
    settings.setScrollRate(rate);
    effects.looksChanged();
    recorder.trackDisplaySettings(settings.values());
}

bool SettingChoices::setSource(SourceType source) {
    const auto enabled = settings.getEnabledSources();
    if (std::find(enabled.begin(), enabled.end(), source) == enabled.end()) return false;
    effects.sourceChosen(source);
    return true;
}

void SettingChoices::setFontSize(double points) {
    if (points == settings.fontSize()) return;
    settings.setFontSize(points);
    effects.looksChanged();
    recorder.trackDisplaySettings(settings.values());
}

} // namespace tessaline
