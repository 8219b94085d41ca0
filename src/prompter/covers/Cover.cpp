#include "prompter/covers/Cover.h"

#include <QAccessibleWidget>

namespace tessaline {

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* cover = qobject_cast<Cover*>(object);
    return cover ? new QAccessibleWidget(cover, QAccessible::AlertMessage) : nullptr;
}

} // namespace

Cover::Cover(QWidget* parent) : QWidget(parent) {
    QAccessible::installFactory(makeInterface);
    hide();
}

void Cover::announce() {
    if (!isVisible()) return;
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

} // namespace tessaline
