#include "sources/notes/AppleNotesLibrary.h"

#include "platform/MainQueue.h"
#include "platform/TaskRunner.h"
#include "platform/UrlOpener.h"
#include "sources/notes/NoteReader.h"

#include <QUrl>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

AppleNotesLibrary::AppleNotesLibrary(MainQueue& queue, TaskRunner& tasks, ProcessRunner& processes,
                                     UrlOpener& opener)
    : mainQueue(queue), taskRunner(tasks), processRunner(processes), urlOpener(opener) {}

void AppleNotesLibrary::listNotes(std::function<void(const Answer&)> completion) {
    taskRunner.run([&queue = mainQueue, &processes = processRunner,
                    complete = lifetime.guard(std::move(completion))]() mutable {
        if (!complete.isAlive()) return;
        // The completion moves on with the answer, so that it is destroyed on the main thread.
        queue.post([answer = readNoteList(processes), complete = std::move(complete)] {
            complete(answer);
        });
    });
}

void AppleNotesLibrary::openAutomationPreferences() {
    const QUrl url(u"x-apple.systempreferences:com.apple.preference.security?Privacy_Automation"_s);
    if (url.isValid()) urlOpener.open(url);
}

} // namespace tessaline
