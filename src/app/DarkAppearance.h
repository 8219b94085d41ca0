#pragma once

namespace tessaline {

/// Gives all windows, menus and tool tips of the application the dark look. Call it once, when the
/// QApplication exists.
void applyDarkAppearance();

} // namespace tessaline
