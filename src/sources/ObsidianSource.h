#pragma once

#include "platform/Lifetime.h"
#include "sources/ContentSource.h"

#include <QString>

#include <atomic>
#include <functional>
#include <memory>
#include <optional>

namespace tessaline {

class MainQueue;
class RepeatingTimer;
class TaskRunner;
class TimerMaker;

/// The note that the companion plug-in sends: one file, read once a second and delivered whenever
/// its text is another one. A file that cannot be read leaves the last text in place. The file is
/// read and compared in the background.
class ObsidianSource final : public ContentSource {
public:
    /// Delivered when there is nothing to read at the start.
    static QString placeholder();

    /// The file that the plug-in writes.
    static QString notchFilePath();

    /// Tasks that are still in the runner or in the queue when the source goes do nothing.
    ObsidianSource(MainQueue& mainQueue, TaskRunner& taskRunner, TimerMaker& timerMaker,
                   QString path = notchFilePath());
    ~ObsidianSource() override;
    ObsidianSource(const ObsidianSource&) = delete;
    ObsidianSource& operator=(const ObsidianSource&) = delete;

    void startWatching(ContentCallback onChange) override;
    void stopWatching() override;

private:
    using Read = std::function<std::optional<QString>()>;

    void loadInitially();
    void checkForUpdates();
    void readInBackground(Read read, ContentCallback deliver);
    void callBack(const QString& text);

    MainQueue& mainQueue;
    TaskRunner& taskRunner;
    TimerMaker& timerMaker;
    const QString path;
    QString lastContent;
    ContentCallback watchCallback;
    /// Shared with the background, which reads nothing for a watch that has ended.
    const std::shared_ptr<std::atomic<bool>> isWatching;
    int readsInFlight = 0;
    std::unique_ptr<RepeatingTimer> fileTimer;
    Lifetime lifetime;
};

} // namespace tessaline
