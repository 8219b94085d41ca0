#pragma once

#include "ui/onboarding/Card.h"

#include <QString>

#include <functional>

class QLabel;
class QPushButton;

namespace tessaline {

class StatusDot;

/// One permission: what it is for, whether it is granted, and a button that asks for it.
class PermissionStatusView : public Card {
    Q_OBJECT

public:
    PermissionStatusView(const QString& title, const QString& description, bool isGranted,
                         QWidget* parent = nullptr);

    /// Shows the state. Granted, the button says so and cannot be pressed. Where nobody can grant
    /// it, there is no button; the description then says what to do instead.
    void updateStatus(bool isGranted);

    /// Called when the user asks for the permission.
    std::function<void()> onGrantButtonClicked;

private:
    void grantButtonClicked();

    StatusDot* statusIndicator = nullptr;
    QLabel* titleLabel = nullptr;
    QLabel* descriptionLabel = nullptr;
    QPushButton* grantButton = nullptr;
    QString purpose;
};

} // namespace tessaline
