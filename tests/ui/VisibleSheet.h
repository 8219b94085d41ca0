#pragma once

#include "ui/Alert.h"

namespace tessaline {

/// The alert that hangs over a window, or null.
inline Alert* visibleSheet(const QWidget& window) {
    for (Alert* alert : window.findChildren<Alert*>())
        if (alert->isVisible()) return alert;
    return nullptr;
}

} // namespace tessaline
