#include "settings/AppSettings.h"

#include "settings/SettingsCodec.h"
#include "settings/SupportFolder.h"
#include "settings/WholeFile.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Far above any real configuration. Keeps a damaged one from filling the memory.
constexpr qint64 configFileLimit = qint64{16} << 20;

void printLine(const QString& line) {
    std::fputs((line + u'\n').toUtf8().constData(), stdout);
    std::fflush(stdout);
}

} // namespace

AppSettings::AppSettings() {
    loadSettings();
}

AppSettings::AppSettings(const QString& configPath) : testConfigURL(configPath) {
    loadSettings();
}

void AppSettings::loadSettings() {
    const QString path = configPath();
    if (!QFileInfo::exists(path)) {
        save();
        return;
    }
    QString error;
    const auto bytes = readWholeFile(path, &error, configFileLimit);
    const auto loaded = bytes ? decodeSettings(*bytes, &error) : std::nullopt;
    if (!loaded) {
        printLine(u"⚠️ Failed to load config: "_s + error);
        // The next save replaces the file: what somebody wrote by hand is kept beside it.
        if (bytes) writeWholeFile(path + ".unreadable"_L1, *bytes);
        return;
    }
    PersistedSettings::operator=(*loaded);
    if (scrollSpeed > 0) {
        lastNonZeroScrollSpeed = scrollSpeed;
    } else if (lastNonZeroScrollSpeed <= 0) {
        lastNonZeroScrollSpeed = defaultResumeSpeed;
    }
}

void AppSettings::save() const {
    QString error;
    const auto bytes = encodeSettings(*this, &error);
    if (!bytes || !writeWholeFile(configPath(), *bytes, &error))
        printLine(u"❌ Failed to save config: "_s + error);
}

void AppSettings::setSourceEnabled(SourceType source, bool enabled) {
    enabledSourceTypes.insert(SourceType::clipboard);
    if (source == SourceType::clipboard) return;
    if (enabled) {
        enabledSourceTypes.insert(source);
    } else {
        enabledSourceTypes.erase(source);
        if (activeSourceType == source) activeSourceType = SourceType::clipboard;
    }
    save();
}

std::vector<SourceType> AppSettings::getEnabledSources() const {
    std::vector<SourceType> sources;
    std::copy_if(availableSources.begin(), availableSources.end(), std::back_inserter(sources),
                 [this](SourceType source) { return enabledSourceTypes.count(source) > 0; });
    return sources;
}

QString AppSettings::configPath() const {
    if (testConfigURL) return *testConfigURL;
    // Where this fails, reading or writing the file fails next and says so.
    QDir().mkpath(supportFolderPath());
    return supportFolderPath() + "/config.json"_L1;
}

} // namespace tessaline
