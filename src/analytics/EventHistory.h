#pragma once

#include "analytics/HistoryText.h"
#include "analytics/UsageRecorder.h"

#include <QString>

#include <mutex>
#include <vector>

namespace tessaline {

/// The events of the last weeks, in memory and in a file. New ones are kept apart until a flush
/// encodes them, so that recording never waits for a file. Any thread.
class EventHistory {
public:
    /// A history in the file at `path`, which is not read yet. Of its events those count that are
    /// later than `oldest`.
    EventHistory(QString path, const QDateTime& oldest);

    void add(const AnalyticsEvent& event);

    /// How many events were added.
    qint64 addedCount() const;

    /// Reads the file unless that was done. What cannot be read or decoded is logged and counts as
    /// no events.
    void load();

    /// Writes all events, those of the file first, over the file, whole or not at all, and returns
    /// when it is done. What another instance of the program has written meanwhile stays. Does
    /// nothing without events, nor when the file is there and up to date. A file that could not be
    /// understood is renamed first, to a name that ends with ".unreadable"; while that is not
    /// possible, it stays. A failure is logged, and everything is written by the next flush.
    void flush();

private:
    /// Differs after the file was written.
    struct Stamp {
        qint64 size = -1; ///< negative: there is no file
        QDateTime modified;
        QDateTime changed;

        bool operator==(const Stamp&) const = default;
    };

    Stamp currentStamp() const;
    void loadFile();
    void readFile();
    bool write(const std::vector<AnalyticsEvent>& events, QString& error);
    bool putAside(QString& error);

    const QString path;
    const QDateTime oldest; ///< in UTC, in which comparing is cheap

    mutable std::mutex bufferLock; ///< guards the next two; never held for long
    std::vector<AnalyticsEvent> unwritten;
    qint64 added = 0;

    std::mutex fileLock; ///< guards the file and what follows; taken before `bufferLock`
    HistoryText text;    ///< of the file as it was at `stamp`
    Stamp stamp;
    bool isLoaded = false;
    bool isForeign = false; ///< the file holds what we do not understand
    bool isUpToDate = false;
};

} // namespace tessaline
