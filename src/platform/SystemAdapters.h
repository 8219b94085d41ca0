#pragma once

#include "platform/ScreenIdentity.h"

#include <QString>

#include <memory>
#include <optional>

class QScreen;

namespace tessaline {

class DisplayLinkMaker;
class WindowTraits;

// The adapters of the system that the program was built for: each system defines these functions in
// its own folder. Main thread.

/// Chooses how to reach the display, before the QApplication is made. Returns what is wrong where
/// there is none, in one line.
std::optional<QString> prepareDisplay();

/// Display links of this system. Needs the QApplication, as do the others below.
std::unique_ptr<DisplayLinkMaker> makeDisplayLinkMaker();

/// What this system can do for the prompter's window.
std::unique_ptr<WindowTraits> makeWindowTraits();

/// What tells a screen from others, in every session.
ScreenIdentity identifyScreen(const QScreen& screen);

} // namespace tessaline
