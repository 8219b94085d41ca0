#pragma once

namespace tessaline {

struct Rect;

/// Where the settings window goes: centred on the screen, directly below a prompter of this height
/// that hangs from the screen's top edge. All in points; `window` gives the size.
Rect configWindowFrame(const Rect& window, const Rect& screenFrame, double prompterHeight);

} // namespace tessaline
