#include "sources/notes/AppleNotesSource.h"

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"
#include "platform/TimerMaker.h"
#include "sources/notes/NoteReader.h"

#include <utility>
#include <variant>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

constexpr TimerMaker::Interval pollInterval{3.0};

QString textFor(const ContentSourceError& error) {
    switch (error.kind()) {
    case ContentSourceError::Kind::noContent:
        return u"Apple Notes: No note selected.\n\nSelect a note in Settings."_s;
    case ContentSourceError::Kind::permissionDenied:
        return u"Apple Notes: Automation permission required.\n\n"
               "Grant permission in System Settings > Privacy & Security > Automation.\n\n"
               "Look for Tessaline and enable Notes."_s;
    default:
        return "Apple Notes: "_L1 + error.errorDescription();
    }
}

QString textFor(const ContentResult& result) {
    if (const auto* text = std::get_if<QString>(&result)) return *text;
    return textFor(std::get<ContentSourceError>(result));
}

} // namespace

/// What outlives the source when it goes while a script runs. Tasks hold it weakly; only the main
/// thread looks inside.
struct AppleNotesSource::Watch {
    QString lastContent;
    ContentCallback callback;
    int checksInFlight = 0;
};

AppleNotesSource::AppleNotesSource(MainQueue& queue, TaskRunner& tasks, TimerMaker& timers,
                                   ProcessRunner& processes)
    : mainQueue(queue)
    , taskRunner(tasks)
    , timerMaker(timers)
    , processRunner(processes)
    , watch(std::make_shared<Watch>()) {}

AppleNotesSource::~AppleNotesSource() {
    stopWatching();
}

void AppleNotesSource::startWatching(ContentCallback onChange) {
    stopWatching();
    watch->callback = std::move(onChange);
    watchTimer = timerMaker.every(pollInterval, [this] {
        // Scripts that are slow, or wait for the user's permission, do not pile up.
        if (watch->checksInFlight == 0) check();
    });
    check();
}

void AppleNotesSource::stopWatching() {
    watchTimer.reset();
    watch->callback = nullptr;
    watch->lastContent.clear();
}

void AppleNotesSource::check() {
    ++watch->checksInFlight;
    taskRunner.run([weak = std::weak_ptr(watch), &queue = mainQueue, &processes = processRunner,
                    note = configuration] {
        if (weak.expired()) return;
        queue.post([weak, text = textFor(readNote(processes, note))] {
            const auto state = weak.lock();
            if (!state) return;
            --state->checksInFlight;
            if (!state->callback || text == state->lastContent) return;
            state->lastContent = text;
            // The callback may stop the watching and so let go of itself.
            const auto callback = state->callback;
            callback(text);
        });
    });
}

} // namespace tessaline
