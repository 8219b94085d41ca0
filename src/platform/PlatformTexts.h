#pragma once

#include <QString>

namespace tessaline {

/// What the windows say that is not true, or has other names, on every system: the machine, its
/// keys, its permissions.
struct PlatformTexts {
    QString subtitle; ///< below the welcome

    QString permissionTitle;   ///< of seeing input of other applications, in the first-run window
    QString permissionLabel;   ///< the same in the settings
    QString permissionGranted; ///< on the button that asked for it
    QString granted;           ///< the dot's state for screen readers
    QString notGranted;
    QString permissionAlternative; ///< what to do where nobody can grant it; empty: ask for it

    QString reachOfGestures; ///< above the list of those that use the wheel and the buttons

    QString obsidianNotDetected;
    QString obsidianInvitation;
    QString pluginInstalled; ///< what to do in Obsidian now

    /// What drives the prompter where a click does not bring it the keyboard; empty: it always
    /// does.
    QString keyboardRefused;

    QString pasteHint; ///< the keys that paste, as the empty prompter shows them
    // The same and others, as the list of shortcuts shows them.
    QString pasteKeys;
    QString scrollKeys;
    QString scrollClickKeys;
    QString twoFingerTapKeys;
};

/// The texts for the system that the program is built for. Any thread.
const PlatformTexts& platformTexts();

} // namespace tessaline
