#include "sources/notes/AppleNotesSource.h"

#include "platform/RunThenPost.h"
#include "platform/TimerMaker.h"
#include "sources/notes/NoteReader.h"

#include <utility>
#include <variant>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

constexpr TimerMaker::Interval notesPollInterval{3.0};

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

AppleNotesSource::AppleNotesSource(MainQueue& queue, TaskRunner& tasks, TimerMaker& timers,
                                   ProcessRunner& processes)
    : mainQueue(queue), taskRunner(tasks), timerMaker(timers), processRunner(processes) {}

AppleNotesSource::~AppleNotesSource() = default;

void AppleNotesSource::startWatching(ContentCallback onChange) {
    stopWatching();
    watchCallback = std::move(onChange);
    watchTimer = timerMaker.every(notesPollInterval, [this] {
        // Scripts that are slow, or wait for the user's permission, do not pile up.
        if (checksInFlight == 0) check();
    });
    check();
}

void AppleNotesSource::stopWatching() {
    watchTimer.reset();
    watchCallback = nullptr;
    lastContent.clear();
}

void AppleNotesSource::check() {
    ++checksInFlight;
    runThenPost(
        taskRunner, mainQueue,
        [&processes = processRunner, note = configuration] {
            return textFor(readNote(processes, note));
        },
        lifetime.guard([this](const QString& text) { deliver(text); }));
}

void AppleNotesSource::deliver(const QString& text) {
    --checksInFlight;
    if (!watchCallback || text == lastContent) return;
    lastContent = text;
    // The callback may stop the watching and so let go of itself.
    const auto callback = watchCallback;
    callback(text);
}

} // namespace tessaline
