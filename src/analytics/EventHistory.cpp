#include "analytics/EventHistory.h"

#include "analytics/AnalyticsLog.h"
#include "settings/FolderLock.h"
#include "settings/WholeFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// A million events, far above any month's. Keeps a damaged file from filling the memory.
constexpr qint64 historyFileLimit = qint64{256} << 20;

} // namespace

EventHistory::EventHistory(QString historyPath, const QDateTime& oldestMoment)
    : path(std::move(historyPath)), oldest(oldestMoment.toUTC()) {}

void EventHistory::add(const AnalyticsEvent& event) {
    const std::scoped_lock guard(bufferLock);
    unwritten.push_back(event);
    ++added;
}

qint64 EventHistory::addedCount() const {
    const std::scoped_lock guard(bufferLock);
    return added;
}

void EventHistory::load() {
    const std::scoped_lock guard(fileLock);
    loadFile();
}

void EventHistory::flush() {
    const std::scoped_lock guard(fileLock);
    loadFile();
    std::vector<AnalyticsEvent> events;
    {
        const std::scoped_lock bufferGuard(bufferLock);
        events.swap(unwritten);
    }
    if (text.isEmpty() && events.empty()) return;
    if (isUpToDate && events.empty() && QFileInfo::exists(path)) return;
    QElapsedTimer time;
    time.start();
    qCDebug(intervalLog, "flush: begin");
    QString error;
    isUpToDate = write(events, error);
    if (!isUpToDate) {
        qCCritical(analyticsLog, "Failed to flush analytics: %s", qUtf8Printable(error));
        const std::scoped_lock bufferGuard(bufferLock);
        unwritten.insert(unwritten.begin(), events.begin(), events.end());
    }
    qCDebug(intervalLog, "flush: end");
    qCDebug(perfLog, "Flush of %lld bytes took %lld ms", static_cast<long long>(text.size()),
            static_cast<long long>(time.elapsed()));
}

EventHistory::Stamp EventHistory::currentStamp() const {
    const QFileInfo file(path);
    if (!file.exists()) return {};
    return {file.size(), file.lastModified(), file.metadataChangeTime()};
}

void EventHistory::loadFile() {
    if (!std::exchange(isLoaded, true)) readFile();
}

void EventHistory::readFile() {
    stamp = currentStamp();
    if (stamp == Stamp()) return;
    QString error;
    bool leftOut = false;
    const auto bytes = readWholeFile(path, &error, historyFileLimit);
    auto loaded = bytes ? HistoryText::read(*bytes, oldest, leftOut, error) : std::nullopt;
    isForeign = !loaded;
    if (isForeign) {
        qCCritical(analyticsLog, "Failed to load analytics history: %s", qUtf8Printable(error));
        return;
    }
    text = std::move(*loaded);
    isUpToDate = !leftOut;
}

bool EventHistory::write(const std::vector<AnalyticsEvent>& events, QString& error) {
    // Where this fails, writing the file fails next and says so.
    const QString folder = QFileInfo(path).path();
    QDir().mkpath(folder);
    const FolderLock otherInstances(folder);
    if (const Stamp now = currentStamp(); now != Stamp() && now != stamp) readFile();
    HistoryText complete = text;
    for (const AnalyticsEvent& event : events)
        complete.append(event);
    if (isForeign && !putAside(error)) return false;
    if (!writeWholeFile(path, complete.pieces(), &error)) return false;
    stamp = currentStamp();
    text = std::move(complete);
    return true;
}

bool EventHistory::putAside(QString& error) {
    // Renaming needs no room on the disk, and replaces what was put aside before. What is no file
    // stays in its place: the write refuses it.
    const QByteArray from = QFile::encodeName(path);
    if (QFileInfo(path).isFile() && std::rename(from, from + ".unreadable") != 0) {
        error = qt_error_string(errno);
        return false;
    }
    isForeign = false;
    return true;
}

} // namespace tessaline
