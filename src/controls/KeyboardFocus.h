#pragma once

class QWidget;

namespace tessaline {

/// Whether the widget has the focus and the user works with the keyboard: only then is the focus
/// shown.
bool showsFocus(const QWidget& widget);

} // namespace tessaline
