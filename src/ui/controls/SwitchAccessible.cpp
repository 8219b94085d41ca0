#include "ui/controls/SwitchAccessible.h"

#include "ui/controls/Switch.h"

namespace tessaline {

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* control = qobject_cast<Switch*>(object);
    return control ? new SwitchAccessible(*control) : nullptr;
}

} // namespace

void installSwitchAccessibility() {
    QAccessible::installFactory(makeInterface);
}

SwitchAccessible::SwitchAccessible(Switch& control)
    : QAccessibleWidget(&control, QAccessible::CheckBox) {}

Switch& SwitchAccessible::control() const {
    return *static_cast<Switch*>(widget());
}

QAccessible::State SwitchAccessible::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.checkable = true;
    state.checked = control().isChecked();
    return state;
}

QStringList SwitchAccessible::actionNames() const {
    QStringList names = QAccessibleWidget::actionNames();
    if (control().isEnabled()) names.prepend(toggleAction());
    return names;
}

// Qt's own interface for buttons sets the state without a click, so that nobody would hear of it.
void SwitchAccessible::doAction(const QString& action) {
    if (action == toggleAction()) {
        control().click();
    } else {
        QAccessibleWidget::doAction(action);
    }
}

} // namespace tessaline
