#pragma once

#include "platform/AccessibilityTrust.h"

#include <QWidget>

class QLabel;
class QPushButton;

namespace tessaline {

class StatusDot;

/// Tells whether the Accessibility permission is granted. While it is not, a button asks for it
/// where somebody can grant it; a text says what else there is to know or to do.
class AccessibilityRow : public QWidget {
    Q_OBJECT

public:
    explicit AccessibilityRow(QWidget* parent = nullptr);

    /// Shows the state.
    void updateStatus(const AccessibilityTrust::Report& report);

Q_SIGNALS:
    /// The user asks for the permission.
    void fixPressed();

private:
    StatusDot* accessibilityDot = nullptr;
    QLabel* accessibilityLabel = nullptr;
    QPushButton* accessibilityFixButton = nullptr;
    QLabel* noteLabel = nullptr;
};

} // namespace tessaline
