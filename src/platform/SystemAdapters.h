#pragma once

#include "platform/ScreenIdentity.h"

#include <memory>

class QScreen;

namespace tessaline {

class DisplayLinkMaker;

/// The adapters of the system that the program was built for; each system defines these functions
/// in its own folder. Main thread, after the QGuiApplication is made.

std::unique_ptr<DisplayLinkMaker> makeDisplayLinkMaker();

/// What tells a screen from others, in every session.
ScreenIdentity identifyScreen(const QScreen& screen);

} // namespace tessaline
