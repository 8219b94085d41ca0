#include "settings/AppSettings.h"

#include "settings/JsonReader.h"
#include "settings/KeptCopy.h"
#include "settings/SettingsCodec.h"
#include "settings/SupportFolder.h"
#include "settings/WholeFile.h"

#include <QDir>
#include <QFileInfo>
#include <QLoggingCategory>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(settingsLog, "app.tessaline.Tessaline.settings", QtInfoMsg)

void printLine(const QString& line) {
    std::fputs((line + u'\n').toUtf8().constData(), stdout);
    std::fflush(stdout);
}

/// The next save replaces the file, and somebody may have written it by hand. Returns whether that
/// is no loss any more.
bool keepUnusableFile(const QString& path) {
    if (!QFileInfo(path).isFile()) return true;
    QString error;
    const QString copy = keepCopy(path, &error);
    if (copy.isEmpty()) {
        qCWarning(settingsLog, "No copy can be made of the configuration that cannot be used: %ls",
                  qUtf16Printable(error));
    } else {
        qCWarning(settingsLog, "The configuration that cannot be used is kept as %ls",
                  qUtf16Printable(copy));
    }
    return !copy.isEmpty();
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
    const auto bytes = readWholeFile(path, &error, jsonFileLimit);
    const auto loaded = bytes ? decodeSettings(*bytes, &error) : std::nullopt;
    if (!loaded) {
        printLine(u"⚠️ Failed to load config: "_s + error);
        if (!keepUnusableFile(path)) unwritten = *this;
        return;
    }
    unwritten.reset();
    PersistedSettings::operator=(*loaded);
    if (scrollSpeed > 0) {
        lastNonZeroScrollSpeed = scrollSpeed;
    } else if (lastNonZeroScrollSpeed <= 0) {
        lastNonZeroScrollSpeed = defaultResumeSpeed;
    }
}

void AppSettings::save() const {
    if (unwritten) {
        if (*unwritten == *this) return;
        keepUnusableFile(configPath());
        unwritten.reset();
    }
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
