#pragma once

#include <QWidget>

class QLabel;
class QPushButton;

namespace tessaline {

class StatusDot;

/// Tells whether the Accessibility permission is granted. While it is not, a button asks for it, or
/// a text says what to do where nobody can grant it.
class AccessibilityRow : public QWidget {
    Q_OBJECT

public:
    explicit AccessibilityRow(QWidget* parent = nullptr);

    /// Shows the state.
    void updateStatus(bool trusted);

Q_SIGNALS:
    /// The user asks for the permission.
    void fixPressed();

private:
    StatusDot* accessibilityDot = nullptr;
    QLabel* accessibilityLabel = nullptr;
    QPushButton* accessibilityFixButton = nullptr;
    QLabel* alternativeLabel = nullptr;
};

} // namespace tessaline
