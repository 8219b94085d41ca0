#include "sources/notes/NoteReader.h"

#include "sources/notes/HtmlToMarkdown.h"
#include "sources/notes/NoteListing.h"
#include "sources/notes/NoteScripts.h"

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

ProcessResult runOsascript(ProcessRunner& runner, const QString& script) {
    return runner.run(u"/usr/bin/osascript"_s, {u"-e"_s, script});
}

ContentSourceError classifyScriptFailure(const QString& error) {
    for (const QLatin1StringView refusal : {"-1743"_L1, "not allowed"_L1, "assistive"_L1})
        if (error.contains(refusal)) return ContentSourceError::permissionDenied();
    return ContentSourceError::scriptError(error.isEmpty() ? u"Script failed"_s : error);
}

ContentResult readNote(ProcessRunner& runner,
                       const std::optional<AppleNotesConfiguration>& configuration) {
    const ProcessResult run =
        runOsascript(runner, configuration ? noteScripts::noteWithIdentifier(configuration->noteId)
                                           : noteScripts::mostRecentNote());
    if (run.exitCode != 0) return classifyScriptFailure(run.error);
    if (run.output.isEmpty()) return ContentSourceError::noContent();
    return convertHtmlToMarkdown(run.output);
}

NoteLibrary::Answer readNoteList(ProcessRunner& runner) {
    const ProcessResult run = runOsascript(runner, noteScripts::listOfNotes());
    if (run.exitCode != 0) return classifyScriptFailure(run.error);
    return parseNoteListing(run.output);
}

} // namespace tessaline
