#pragma once

namespace tessaline {

class NativeLook;

/// Gives all windows, menus and tool tips of the application the dark look. Call it once, when the
/// QApplication exists.
void applyDarkAppearance(NativeLook& look);

} // namespace tessaline
