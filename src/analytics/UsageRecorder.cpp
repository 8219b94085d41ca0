#include "analytics/UsageRecorder.h"

#include "settings/PersistedSettings.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QString text(PermissionType type) {
    return type == PermissionType::accessibility ? u"accessibility"_s : u"automation"_s;
}

} // namespace

QString booleanText(bool value) {
    return value ? u"true"_s : u"false"_s;
}

void UsageRecorder::trackOnboardingStarted() {
    record({.name = u"onboarding_started"_s});
}

void UsageRecorder::trackOnboardingCompleted(bool accessibilityGranted, bool obsidianEnabled) {
    record({.name = u"onboarding_completed"_s,
            .properties = {{u"accessibility_granted"_s, booleanText(accessibilityGranted)},
                           {u"obsidian_enabled"_s, booleanText(obsidianEnabled)}}});
}

void UsageRecorder::trackSourceChanged(SourceType to) {
    record({.name = u"source_changed"_s, .properties = {{u"source_type"_s, rawValue(to)}}});
}

void UsageRecorder::trackContentLoaded(SourceType source, qsizetype wordCount) {
    record({.name = u"content_loaded"_s,
            .properties = {{u"source_type"_s, rawValue(source)},
                           {u"word_count"_s, QString::number(wordCount)}}});
}

void UsageRecorder::trackContentPasted(qsizetype wordCount) {
    record({.name = u"content_pasted"_s,
            .properties = {{u"word_count"_s, QString::number(wordCount)}}});
}

void UsageRecorder::trackAutoScrollToggled(bool enabled, ScrollRate rate) {
    record(
        {.name = u"auto_scroll_toggled"_s,
         .properties = {{u"enabled"_s, booleanText(enabled)}, {u"scroll_rate"_s, rawValue(rate)}}});
}

void UsageRecorder::trackSettingChanged(const QString& name, const QString& value) {
    record({.name = u"setting_changed"_s,
            .properties = {{u"setting_name"_s, name}, {u"setting_value"_s, value}}});
}

void UsageRecorder::trackDisplaySettings(const PersistedSettings& settings) {
    trackSettingChanged(u"width"_s, QString::number(int(settings.width)));
    trackSettingChanged(u"height"_s, QString::number(int(settings.height)));
    trackSettingChanged(u"fontSize"_s, QString::number(int(settings.fontSize)));
    trackSettingChanged(u"scrollRate"_s, rawValue(settings.scrollRate));
}

void UsageRecorder::trackScreenChanged(int screenIndex) {
    record({.name = u"screen_changed"_s,
            .properties = {{u"screen_index"_s, QString::number(screenIndex)}}});
}

void UsageRecorder::trackObsidianPluginInstalled(bool success) {
    record({.name = u"obsidian_plugin_installed"_s,
            .properties = {{u"success"_s, booleanText(success)}}});
}

void UsageRecorder::trackPermissionStatus(PermissionType type, bool granted) {
    record(
        {.name = u"permission_status"_s,
         .properties = {{u"permission_type"_s, text(type)}, {u"granted"_s, booleanText(granted)}}});
}

} // namespace tessaline
