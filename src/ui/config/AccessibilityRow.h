#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace tessaline {

class StatusDot;

/// Tells whether the Accessibility permission is granted, with a button to ask for it while it is
/// not. Main thread only.
class AccessibilityRow : public QWidget {
    Q_OBJECT

public:
    explicit AccessibilityRow(QWidget* parent = nullptr);

    /// Shows the state.
    void updateStatus(bool trusted);

    StatusDot* accessibilityDot = nullptr;
    QLabel* accessibilityLabel = nullptr;
    QPushButton* accessibilityFixButton = nullptr;
};

} // namespace tessaline
