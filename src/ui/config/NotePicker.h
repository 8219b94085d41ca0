#pragma once

#include "settings/AppleNotesConfiguration.h"
#include "sources/NoteLibrary.h"

#include <functional>
#include <vector>

class QWidget;

namespace tessaline {

/// Lets the user pick a note.
class NotePicker {
public:
    /// Gets the picked note; never called when the user picks none.
    using Picked = std::function<void(const AppleNotesConfiguration& note)>;

    /// Asks for the notes in the background and then shows, over `window`, the list of them or what
    /// went wrong. Shows nothing if the window is gone by then. Where a permission is missing, the
    /// system's page for it opens instead.
    static void pick(QWidget& window, NoteLibrary& library, const Picked& picked);

private:
    static void showNoteSelectionSheet(QWidget& window, const std::vector<NoteLibrary::Note>& notes,
                                       const Picked& picked);
    static void showFailure(QWidget& window, NoteLibrary& library, const ContentSourceError& error);
};

} // namespace tessaline
