#pragma once

#include <QAccessibleWidget>

namespace tessaline {

class Switch;

/// Makes every switch from now on speak to screen readers. May be called more than once.
void installSwitchAccessibility();

/// What a screen reader sees of a switch: a check box. Its action counts as the user's.
class SwitchAccessible : public QAccessibleWidget {
public:
    explicit SwitchAccessible(Switch& control);

    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& action) override;

private:
    Switch& control() const;
};

} // namespace tessaline
