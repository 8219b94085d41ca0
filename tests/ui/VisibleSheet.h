#pragma once

#include "ui/Alert.h"

#include <memory>

namespace tessaline {

/// The alert that hangs over a window, or null.
inline Alert* visibleSheet(const QWidget& window) {
    for (Alert* alert : window.findChildren<Alert*>())
        if (alert->isVisible()) return alert;
    return nullptr;
}

/// Whether an alert over this window has the icon of a warning.
inline bool isWarning(QWidget& window, const Alert& alert) {
    const std::unique_ptr<Alert> warning(
        Alert::beginSheet(window, {.style = AlertContent::Style::warning}));
    return alert.iconLabel->grab().toImage() == warning->iconLabel->grab().toImage();
}

} // namespace tessaline
