#include "controls/KeyboardFocus.h"

#include <QWidget>

namespace tessaline {

bool showsFocus(const QWidget& widget) {
    return widget.hasFocus() && widget.window()->testAttribute(Qt::WA_KeyboardFocusChange);
}

} // namespace tessaline
