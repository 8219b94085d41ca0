#pragma once

#include <QAccessibleWidget>

namespace tessaline {

class PointSlider;

/// Makes every point slider from now on speak to screen readers. May be called more than once.
void installPointSliderAccessibility();

/// What a screen reader sees of a point slider: a value in points, not in the steps underneath.
class PointSliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    explicit PointSliderAccessible(PointSlider& slider);

    void* interface_cast(QAccessible::InterfaceType type) override;

    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

private:
    PointSlider& slider() const;
};

} // namespace tessaline
