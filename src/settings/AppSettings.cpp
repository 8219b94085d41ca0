#include "settings/AppSettings.h"

#include "settings/PrintedLine.h"
#include "settings/SettingsCodec.h"
#include "settings/SettingsFile.h"
#include "settings/SupportFolder.h"

#include <QDir>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

AppSettings::AppSettings(const std::optional<QString>& configPath)
    : testConfigURL(configPath)
    , file(std::make_unique<SettingsFile<PersistedSettings>>(
          [this] { return this->configPath(); }, configurationTable(), UnknownKeys::dropped)) {
    loadSettings();
}

AppSettings::~AppSettings() = default;

void AppSettings::loadSettings() {
    if (!file->exists()) {
        save();
        return;
    }
    QString error;
    auto loaded = file->load(&error);
    if (!loaded) {
        printLine(u"⚠️ Failed to load config: "_s + error);
        return file->keepUnusable(current);
    }
    if (loaded->scrollSpeed > 0) {
        loaded->lastNonZeroScrollSpeed = loaded->scrollSpeed;
    } else if (loaded->lastNonZeroScrollSpeed <= 0) {
        loaded->lastNonZeroScrollSpeed = PersistedSettings::defaultResumeSpeed;
    }
    announce(std::exchange(current, *std::move(loaded)));
}

void AppSettings::save() const {
    QString error;
    if (!file->save(current, &error)) printLine(u"❌ Failed to save config: "_s + error);
}

void AppSettings::change(const std::function<void(PersistedSettings& values)>& edit) {
    const PersistedSettings before = current;
    edit(current);
    configurationTable().limit(current);
    save();
    announce(before);
}

void AppSettings::setFontSize(double points) {
    change([points](auto& values) { values.fontSize = points; });
}

void AppSettings::setWidth(double points) {
    change([points](auto& values) { values.width = points; });
}

void AppSettings::setHeight(double points) {
    change([points](auto& values) { values.height = points; });
}

void AppSettings::setXOffset(double points) {
    change([points](auto& values) { values.xOffset = points; });
}

void AppSettings::setScrollSpeed(double speed) {
    change([speed](auto& values) {
        values.scrollSpeed = std::clamp(speed, 0.0, PersistedSettings::maxScrollSpeed);
        if (values.scrollSpeed > 0) values.lastNonZeroScrollSpeed = values.scrollSpeed;
    });
}

void AppSettings::setAutoScrollEnabled(bool enabled) {
    change([enabled](auto& values) {
        values.autoScrollEnabled = enabled;
        if (!enabled || values.scrollSpeed > 0) return;
        if (values.lastNonZeroScrollSpeed <= 0)
            values.lastNonZeroScrollSpeed = PersistedSettings::defaultResumeSpeed;
        values.scrollSpeed = values.lastNonZeroScrollSpeed;
    });
}

void AppSettings::setScrollRate(ScrollRate rate) {
    change([rate](auto& values) { values.scrollRate = rate; });
}

void AppSettings::setHasCompletedOnboarding(bool completed) {
    change([completed](auto& values) { values.hasCompletedOnboarding = completed; });
}

void AppSettings::setActiveSourceType(SourceType source) {
    change([source](auto& values) { values.activeSourceType = source; });
}

void AppSettings::setAppleNotesConfig(const std::optional<AppleNotesConfiguration>& note) {
    change([&note](auto& values) { values.appleNotesConfig = note; });
}

void AppSettings::setPreferredDisplayID(std::optional<std::uint32_t> display) {
    change([display](auto& values) { values.preferredDisplayID = display; });
}

void AppSettings::setSourceEnabled(SourceType source, bool enabled) {
    if (source == SourceType::clipboard) {
        current.enabledSourceTypes.insert(SourceType::clipboard);
        return;
    }
    change([source, enabled](auto& values) {
        values.enabledSourceTypes.insert(SourceType::clipboard);
        if (enabled) {
            values.enabledSourceTypes.insert(source);
        } else {
            values.enabledSourceTypes.erase(source);
            if (values.activeSourceType == source) values.activeSourceType = SourceType::clipboard;
        }
    });
}

std::vector<SourceType> AppSettings::getEnabledSources() const {
    std::vector<SourceType> sources;
    std::copy_if(availableSources.begin(), availableSources.end(), std::back_inserter(sources),
                 [this](SourceType source) { return isSourceEnabled(source); });
    return sources;
}

bool AppSettings::isSourceEnabled(SourceType source) const {
    return current.enabledSourceTypes.contains(source);
}

AppSettings::Observation
AppSettings::observe(ChangeObservers<PersistedSettings>::Observer observer) {
    return observers.add(std::move(observer));
}

void AppSettings::announce(const PersistedSettings& before) {
    if (before != current) observers.announce(before);
}

QString AppSettings::configPath() const {
    if (testConfigURL) return *testConfigURL;
    // Where this fails, reading or writing the file fails next and says so.
    QDir().mkpath(supportFolderPath());
    return supportFolderPath() + "/config.json"_L1;
}

} // namespace tessaline
