#include "settings/SettingsCodec.h"

namespace tessaline {

namespace {

using Values = PersistedSettings;

/// Settles which sources are enabled and which of them is active.
void settleSources(const JsonValue& object, Values& values) {
    // A file without the list was written when the active source was the only choice.
    const JsonValue* list = object.find(u"enabledSourceTypes");
    if (!list || list->isNull()) values.enabledSourceTypes = {values.activeSourceType};
    values.enabledSourceTypes.insert(SourceType::clipboard);
    if (!values.enabledSourceTypes.contains(values.activeSourceType))
        values.activeSourceType = SourceType::clipboard;
}

} // namespace

const SettingsTable<PersistedSettings>& configurationTable() {
    static const SettingsTable<Values> table(
        {
            settingsKey("notePath", &Values::notePath),
            settingsKey("fontSize", &Values::fontSize),
            settingsKey("width", &Values::width),
            settingsKey("height", &Values::height),
            settingsKey("xOffset", &Values::xOffset),
            settingsKey("scrollSpeed", &Values::scrollSpeed, Values::maxScrollSpeed),
            settingsKey("lastNonZeroScrollSpeed", &Values::lastNonZeroScrollSpeed,
                        Values::maxScrollSpeed),
            settingsKey("autoScrollEnabled", &Values::autoScrollEnabled),
            settingsKey("scrollRate", &Values::scrollRate),
            settingsKey("hasCompletedOnboarding", &Values::hasCompletedOnboarding),
            settingsKey("activeSourceType", &Values::activeSourceType),
            settingsKey("appleNotesConfig", &Values::appleNotesConfig),
            settingsKey("enabledSourceTypes", &Values::enabledSourceTypes),
            settingsKey("obsidianBookmarkData", &Values::obsidianBookmarkData),
            settingsKey("preferredDisplayID", &Values::preferredDisplayID),
        },
        settleSources);
    return table;
}

std::optional<PersistedSettings> decodeSettings(const QByteArray& bytes, QString* error) {
    return configurationTable().decode(bytes, error);
}

std::optional<QByteArray> encodeSettings(const PersistedSettings& settings, QString* error) {
    return configurationTable().encode(settings, error);
}

} // namespace tessaline
