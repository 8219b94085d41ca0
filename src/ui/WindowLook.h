#pragma once

#include <QColor>
#include <QWidget>

namespace tessaline {

/// Makes a window and all controls in it dark on this ground, on every desktop theme.
void setDarkLook(QWidget& window, const QColor& background);

/// Gives a window its content, which has a layout, and the content's size: this width, and at least
/// this height. Where the screen is too low for that, the content scrolls, and a footer stays in
/// sight below it. The keys that close windows close it. Screen readers see a window.
void fillWithContent(QWidget& window, QWidget* content, const QSize& least,
                     QWidget* footer = nullptr);

/// Takes the focus from the window's controls: the first one would have it without being told
/// apart. The keys scroll then, and Tab goes to the first control.
void focusNoControl(QWidget& window);

/// Gives the window the size of what it shows now, at once, also while it is hidden.
void fitToContent(QWidget& window);

/// The same with another height, in points and without the title bar, that the window gets at most.
/// At first that is the screen's.
void fitToContent(QWidget& window, int room);

} // namespace tessaline
