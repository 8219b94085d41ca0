#pragma once

class QWidget;

namespace tessaline {

/// Shows a window of ours above the others, minimised or not, and gives it the keyboard.
void makeKeyAndOrderFront(QWidget& window);

} // namespace tessaline
