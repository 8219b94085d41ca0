#include "ui/controls/PointSliderAccessible.h"

#include "ui/controls/PointSlider.h"

namespace tessaline {

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* slider = qobject_cast<PointSlider*>(object);
    return slider ? new PointSliderAccessible(*slider) : nullptr;
}

} // namespace

void installPointSliderAccessibility() {
    QAccessible::installFactory(makeInterface);
}

PointSliderAccessible::PointSliderAccessible(PointSlider& pointSlider)
    : QAccessibleWidget(&pointSlider, QAccessible::Slider) {}

PointSlider& PointSliderAccessible::slider() const {
    return *static_cast<PointSlider*>(widget());
}

void* PointSliderAccessible::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return QAccessibleWidget::interface_cast(type);
}

QVariant PointSliderAccessible::currentValue() const {
    return slider().points();
}

// A screen reader acts for the user, so this is announced like a move of the knob.
void PointSliderAccessible::setCurrentValue(const QVariant& value) {
    slider().moveTo(value.toDouble());
}

QVariant PointSliderAccessible::maximumValue() const {
    return slider().maximumPoints();
}

QVariant PointSliderAccessible::minimumValue() const {
    return slider().minimumPoints();
}

QVariant PointSliderAccessible::minimumStepSize() const {
    return 1.0;
}

} // namespace tessaline
