#pragma once

#include "platform/ProcessRunner.h"
#include "settings/AppleNotesConfiguration.h"
#include "sources/ContentFile.h"
#include "sources/NoteLibrary.h"

#include <QString>

#include <optional>

// Each of these runs one script and waits for it. Any thread.

namespace tessaline {

/// Runs an AppleScript with the system's script runner.
ProcessResult runOsascript(ProcessRunner& runner, const QString& script);

/// Why a script failed that left this text on standard error.
ContentSourceError classifyScriptFailure(const QString& error);

/// The chosen note, or the most recent one when none is chosen, as Markdown. Fails with
/// `noContent` when there is no note or no text in it, with `permissionDenied` or `scriptError`.
ContentResult readNote(ProcessRunner& runner,
                       const std::optional<AppleNotesConfiguration>& configuration);

/// All notes; fails with `permissionDenied` or `scriptError`.
NoteLibrary::Answer readNoteList(ProcessRunner& runner);

} // namespace tessaline
