#pragma once

#include "platform/ScreenIdentity.h"

#include <QString>

#include <memory>
#include <optional>

class QImage;
class QScreen;

namespace tessaline {

class AccessibilityTrust;
class ActivationPolicy;
class ApplicationLookup;
class BundleInformation;
class DisplayLinkMaker;
class EventTapMaker;
class FileIcons;
class FolderChooser;
class GlobalKeyMonitor;
class LocalKeyMonitor;
class MainQueue;
class Pasteboard;
class ReservedEdges;
class TaskRunner;
class WindowTraits;

// The adapters of the system that the program was built for: each system defines these functions in
// its own folder. Main thread.

/// Chooses how to reach the display, before the QApplication is made. Returns what is wrong where
/// there is none, in one line.
std::optional<QString> prepareDisplay();

/// Whether the environment says which session this is, so that the prompter that runs in it can be
/// found. Needs no application object.
bool isInASession();

/// Display links of this system. Needs the QApplication, as do the others below.
std::unique_ptr<DisplayLinkMaker> makeDisplayLinkMaker();

/// What this system can do for the prompter's window.
std::unique_ptr<WindowTraits> makeWindowTraits();

/// What tells a screen from others, in every session.
ScreenIdentity identifyScreen(const QScreen& screen);

/// What panels keep of the screens; null where the toolkit knows all of it.
std::unique_ptr<ReservedEdges> makeReservedEdges();

/// What the program says about itself. Needs a QCoreApplication only.
std::unique_ptr<BundleInformation> makeBundleInformation();

/// Whether input of other applications may be seen, and what sees it.
std::unique_ptr<AccessibilityTrust> makeAccessibilityTrust();
std::unique_ptr<GlobalKeyMonitor> makeGlobalKeyMonitor();
std::unique_ptr<EventTapMaker> makeEventTapMaker();

/// Keys in windows of ours, with the meaning that the modifiers have on this system.
std::unique_ptr<LocalKeyMonitor> makeLocalKeyMonitor();

/// The clipboard. Borrows the queue and the tasks, which may have to wait for another program.
std::unique_ptr<Pasteboard> makePasteboard(MainQueue& queue, TaskRunner& tasks);

/// How the program presents itself to this desktop.
std::unique_ptr<ActivationPolicy> makeActivationPolicy();

/// Where other applications are, and what they look like.
std::unique_ptr<ApplicationLookup> makeApplicationLookup();
std::unique_ptr<FileIcons> makeFileIcons();

/// The panel in which the user picks a folder and thereby lets the program into it.
std::unique_ptr<FolderChooser> makeFolderChooser();

/// Gives the system's own widgets their dark look, and title bars where they have one. False where
/// windows are drawn without those widgets: the program has to bring the look along. Call it once.
bool showNativeDarkAppearance();

/// The system's own drawing of this name, described for screen readers; null where it has none.
QImage systemSymbol(const QString& name, const QString& description);

/// Whether the desktop has a place for status items at this moment. The toolkit asks only once and
/// sticks to what it found then: make an item after this said yes. May take a second.
bool hasStatusArea();

/// Whether a click with the first button on a status item opens its menu. Elsewhere the second
/// button does.
bool statusItemOpensItsMenu();

} // namespace tessaline
