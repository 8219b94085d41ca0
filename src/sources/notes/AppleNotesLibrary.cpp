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
    : mainQueue(queue)
    , taskRunner(tasks)
    , processRunner(processes)
    , urlOpener(opener)
    , self(std::make_shared<AppleNotesLibrary*>(this)) {}

void AppleNotesLibrary::listNotes(std::function<void(const Answer&)> completion) {
    taskRunner.run([weak = std::weak_ptr(self), &queue = mainQueue, &processes = processRunner,
                    completion = std::move(completion)]() mutable {
        if (weak.expired()) return;
        // The completion moves on with the answer, so that it is destroyed on the main thread.
        queue.post([weak, answer = readNoteList(processes), completion = std::move(completion)] {
            if (!weak.expired()) completion(answer);
        });
    });
}

void AppleNotesLibrary::openAutomationPreferences() {
    const QUrl url(u"x-apple.systempreferences:com.apple.preference.security?Privacy_Automation"_s);
    if (url.isValid()) urlOpener.open(url);
}

} // namespace tessaline
