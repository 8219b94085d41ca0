#include "settings/ReadingSettings.h"

#include "settings/PrintedLine.h"
#include "settings/SettingsFile.h"
#include "settings/SupportFolder.h"

#include <QDir>

#include <cstdio>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QString standardPath() {
    // Where this fails, writing the file fails next and says so.
    QDir().mkpath(supportFolderPath());
    return supportFolderPath() + "/reading.json"_L1;
}

void tellLimited(const QStringList& names) {
    if (names.isEmpty()) return;
    printLine(u"⚠️ Reading options out of range were brought into it: "_s + names.join(u", "));
}

void tellTomorrow(const ReadingOptions& options) {
    if (options.pace != PaceMode::finish || !options.finishAt) return;
    if (!hasPassed(*options.finishAt, QTime::currentTime())) return;
    printLine(u"⚠️ The time to finish, %1, has passed today: it means tomorrow"_s.arg(
        timeOfDayText(*options.finishAt)));
}

} // namespace

ReadingSettings::ReadingSettings(const std::optional<QString>& path)
    : file(std::make_unique<SettingsFile<ReadingOptions>>(
          [path] { return path ? *path : standardPath(); }, readingOptionsTable(),
          UnknownKeys::kept)) {
    load();
}

ReadingSettings::~ReadingSettings() = default;

void ReadingSettings::load() {
    if (!file->exists()) return;
    QString error;
    QStringList limited;
    if (const auto loaded = file->load(&error, &limited)) {
        current = *loaded;
        tellLimited(limited);
        tellTomorrow(current);
        return;
    }
    printLine(u"⚠️ Failed to load reading options: "_s + error);
    file->keepUnusable(current);
}

void ReadingSettings::change(const std::function<void(ReadingOptions& values)>& edit) {
    const ReadingOptions before = current;
    edit(current);
    readingOptionsTable().limit(current);
    if (before == current) return;
    QString error;
    if (!file->save(current, &error)) printLine(u"❌ Failed to save reading options: "_s + error);
    observers.announce(before);
}

ReadingSettings::Observation
ReadingSettings::observe(ChangeObservers<ReadingOptions>::Observer observer) {
    return observers.add(std::move(observer));
}

} // namespace tessaline
