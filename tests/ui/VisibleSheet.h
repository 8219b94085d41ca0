#pragma once

#include "support/Part.h"
#include "ui/Alert.h"

#include <QLabel>
#include <QList>
#include <QPushButton>

#include <memory>

namespace tessaline {

/// The alert that hangs over a window, or null.
inline Alert* visibleSheet(const QWidget& window) {
    for (Alert* alert : window.findChildren<Alert*>())
        if (alert->isVisible()) return alert;
    return nullptr;
}

/// An alert's buttons in the order of its content.
inline QList<QPushButton*> alertButtons(const Alert& alert) {
    QList<QPushButton*> buttons;
    while (auto* button =
               alert.findChild<QPushButton*>(QStringLiteral("button%1").arg(buttons.size())))
        buttons.push_back(button);
    return buttons;
}

/// Whether an alert over this window has the icon of a warning.
inline bool isWarning(QWidget& window, const Alert& alert) {
    const std::unique_ptr<Alert> warning(
        Alert::beginSheet(window, {.style = AlertContent::Style::warning}));
    return part<QLabel>(alert, "iconLabel")->grab().toImage() ==
           part<QLabel>(*warning, "iconLabel")->grab().toImage();
}

} // namespace tessaline
