#pragma once

#include <QString>

/// What Apple Notes is asked, in AppleScript.
namespace tessaline::noteScripts {

/// The body of the most recent note; nothing when there is no note.
QString mostRecentNote();

/// The body of the note with this identifier, which goes into the script as it is.
QString noteWithIdentifier(const QString& noteId);

/// A line for each note: its identifier, a tab, its name.
QString listOfNotes();

} // namespace tessaline::noteScripts
