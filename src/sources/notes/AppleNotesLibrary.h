#pragma once

#include "platform/Lifetime.h"
#include "sources/NoteLibrary.h"

namespace tessaline {

class MainQueue;
class ProcessRunner;
class TaskRunner;
class UrlOpener;

/// The notes in Apple Notes. The script runs in the background.
class AppleNotesLibrary final : public NoteLibrary {
public:
    /// What is borrowed must outlive this. A script may wait for the user: give the task runner no
    /// other tasks that are in a hurry.
    AppleNotesLibrary(MainQueue& mainQueue, TaskRunner& taskRunner, ProcessRunner& processRunner,
                      UrlOpener& urlOpener);

    /// The answer is dropped when this is gone by then.
    void listNotes(std::function<void(const Answer&)> completion) override;

    void openAutomationPreferences() override;

private:
    MainQueue& mainQueue;
    TaskRunner& taskRunner;
    ProcessRunner& processRunner;
    UrlOpener& urlOpener;
    Lifetime lifetime;
};

} // namespace tessaline
