#pragma once

#include "platform/Lifetime.h"
#include "settings/AppleNotesConfiguration.h"
#include "sources/ContentSource.h"

#include <QString>

#include <memory>
#include <optional>

namespace tessaline {

class MainQueue;
class ProcessRunner;
class RepeatingTimer;
class TaskRunner;
class TimerMaker;

/// A note of Apple Notes as Markdown, read every three seconds and delivered whenever its text is
/// another one. Why a note cannot be read is delivered like a text, and so shown once. The scripts
/// run in the background.
class AppleNotesSource final : public ContentSource {
public:
    /// Tasks that are still in the runner or in the queue when the source goes do nothing more. A
    /// script may wait for the user: give the task runner no other tasks that are in a hurry.
    AppleNotesSource(MainQueue& mainQueue, TaskRunner& taskRunner, TimerMaker& timerMaker,
                     ProcessRunner& processRunner);
    ~AppleNotesSource() override;
    AppleNotesSource(const AppleNotesSource&) = delete;
    AppleNotesSource& operator=(const AppleNotesSource&) = delete;

    void startWatching(ContentCallback onChange) override;
    void stopWatching() override;

    /// The chosen note; none: the most recent one. Counts from the next check on.
    std::optional<AppleNotesConfiguration> configuration;

private:
    void check();
    void deliver(const QString& text);

    MainQueue& mainQueue;
    TaskRunner& taskRunner;
    TimerMaker& timerMaker;
    ProcessRunner& processRunner;
    QString lastContent;
    ContentCallback watchCallback;
    int checksInFlight = 0;
    std::unique_ptr<RepeatingTimer> watchTimer;
    Lifetime lifetime;
};

} // namespace tessaline
