#include "analytics/EventHistory.h"

#include "analytics/AnalyticsLog.h"
#include "analytics/EventDecoder.h"
#include "settings/FolderLock.h"
#include "settings/WholeFile.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <iterator>
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
    newEvents.push_back(event);
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
    takeNewEvents();
    if (text.isEmpty() && unwritten.empty()) return;
    if (isUpToDate && unwritten.empty() && QFileInfo::exists(path)) return;
    QElapsedTimer time;
    time.start();
    qCDebug(intervalLog, "flush: begin");
    QString error;
    isUpToDate = write(&error);
    if (!isUpToDate)
        qCCritical(analyticsLog, "Failed to flush analytics: %s", qUtf8Printable(error));
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
    HistoryText loaded;
    bool leftOut = false;
    const auto keepRecent = [&](const AnalyticsEvent& event) {
        if (event.timestamp > oldest) {
            loaded.append(event);
        } else {
            leftOut = true;
        }
    };
    const auto bytes = readWholeFile(path, &error, historyFileLimit);
    isForeign = !bytes || !decodeEvents(*bytes, keepRecent, &error);
    if (isForeign) {
        qCCritical(analyticsLog, "Failed to load analytics history: %s", qUtf8Printable(error));
        return;
    }
    text = std::move(loaded);
    appended = 0;
    isUpToDate = !leftOut;
}

void EventHistory::takeNewEvents() {
    std::vector<AnalyticsEvent> events;
    {
        const std::scoped_lock guard(bufferLock);
        events.swap(newEvents);
    }
    unwritten.insert(unwritten.end(), std::make_move_iterator(events.begin()),
                     std::make_move_iterator(events.end()));
}

bool EventHistory::write(QString* error) {
    // Where this fails, writing the file fails next and says so.
    const QString folder = QFileInfo(path).path();
    QDir().mkpath(folder);
    const FolderLock otherInstances(folder);
    if (const Stamp now = currentStamp(); now != Stamp() && now != stamp) readFile();
    for (; appended < unwritten.size(); ++appended)
        text.append(unwritten[appended]);
    if (isForeign && !putAside(error)) return false;
    if (!writeWholeFile(path, text.pieces(), error)) return false;
    stamp = currentStamp();
    unwritten.clear();
    appended = 0;
    return true;
}

bool EventHistory::putAside(QString* error) {
    // Renaming needs no room on the disk, and replaces what was put aside before. What is no file
    // stays in its place: the write refuses it.
    const QByteArray from = QFile::encodeName(path);
    if (QFileInfo(path).isFile() && std::rename(from, from + ".unreadable") != 0) {
        *error = qt_error_string(errno);
        return false;
    }
    isForeign = false;
    return true;
}

} // namespace tessaline
