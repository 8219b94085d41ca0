#pragma once

#include <QColor>
#include <QWidget>

#include <optional>

namespace tessaline {

/// Makes a window and all controls in it dark on this ground, on every desktop theme. Main thread.
void setDarkLook(QWidget& window, const QColor& background);

/// Gives a window its content, which has a layout, and the content's size: this width, and at least
/// this height. Where the screen is too low for that, the content scrolls. The keys that close
/// windows close it. Screen readers see a window.
void fillWithContent(QWidget& window, QWidget* content, const QSize& least);

/// Gives the window the size of what it shows now, at once, also while it is hidden. It gets no
/// higher than the room, in points and title bar included; without a value, than the screen.
void fitToContent(QWidget& window, std::optional<int> room = std::nullopt);

} // namespace tessaline
