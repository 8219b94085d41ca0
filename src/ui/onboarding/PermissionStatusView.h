#pragma once

#include "platform/AccessibilityTrust.h"
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
    PermissionStatusView(const QString& title, const QString& description,
                         const AccessibilityTrust::Report& report, QWidget* parent = nullptr);

    /// Shows the state. Granted, the button says so and cannot be pressed. Where nobody can grant
    /// it, there is no button. What else there is to know or to do stands below the description.
    void updateStatus(const AccessibilityTrust::Report& report);

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
