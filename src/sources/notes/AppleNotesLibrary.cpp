#include "sources/notes/AppleNotesLibrary.h"

#include "platform/RunThenPost.h"
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
    runThenPost(
        taskRunner, mainQueue, [&processes = processRunner] { return readNoteList(processes); },
        lifetime.guard(std::move(completion)));
}

void AppleNotesLibrary::openAutomationPreferences() {
    const QUrl url(u"x-apple.systempreferences:com.apple.preference.security?Privacy_Automation"_s);
    if (url.isValid()) urlOpener.open(url);
}

} // namespace tessaline
