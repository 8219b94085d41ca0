#include "ui/controls/PointSlider.h"

#include "appearance/SystemPalette.h"
#include "controls/KeyboardFocus.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>
#include <QSignalBlocker>
#include <QStyleOptionSlider>

#include <algorithm>
#include <cmath>

namespace tessaline {

namespace {

constexpr int stepsPerPoint = 64; ///< finer than any screen, and exact in binary
constexpr int pagesPerRange = 10;
constexpr double grooveThickness = 4.0;
constexpr double ringWidth = 2.0;
constexpr double disabledOpacity = 0.5;

int toSteps(double points) {
    return int(std::lround(points * stepsPerPoint));
}

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
    return slider().step();
}

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* slider = qobject_cast<PointSlider*>(object);
    return slider ? new PointSliderAccessible(*slider) : nullptr;
}

} // namespace

PointSlider::PointSlider(const QString& accessibleName, int width, QWidget* parent)
    : QSlider(Qt::Horizontal, parent) {
    QAccessible::installFactory(makeInterface);
    setAccessibleName(accessibleName);
    setFixedWidth(width);
    setFocusPolicy(Qt::StrongFocus);
    setSingleStep(stepsPerPoint);
    connect(this, &QSlider::valueChanged, this, &PointSlider::adopt);
    connect(this, &QSlider::actionTriggered, this, &PointSlider::leaveDeadZone);
}

void PointSlider::setLimits(double minimum, double maximum) {
    lowest = minimum;
    highest = std::max(minimum, maximum);
    const double page = std::floor((highest - lowest) / pagesPerRange / step()) * step();
    setPageStep(toSteps(std::max(page, step())));
    const QSignalBlocker silence(this);
    setRange(toSteps(lowest), toSteps(highest));
    setPoints(exact);
}

void PointSlider::setStep(double points) {
    snap = points;
    setSingleStep(toSteps(points));
    setLimits(lowest, highest);
}

void PointSlider::setPoints(double value) {
    const QSignalBlocker silence(this);
    exact = std::clamp(value, lowest, highest);
    setValue(toSteps(exact));
}

void PointSlider::moveTo(double value) {
    const double before = exact;
    setPoints(value);
    if (exact != before) Q_EMIT moved();
}

// At the ends the limits count, which need not be whole steps.
void PointSlider::adopt(int steps) {
    const double before = exact;
    exact = double(steps) / stepsPerPoint;
    if (steps == minimum()) exact = lowest;
    if (steps == maximum()) exact = highest;
    if (snap > 0.0) setPoints(std::round(exact / snap) * snap);
    if (snap <= 0.0 || exact != before) Q_EMIT moved();
}

// Runs while the position is chosen but not yet the value, which is when it may be corrected.
void PointSlider::leaveDeadZone(int action) {
    if (deadZone <= 0.0 || exact != 0.0) return;
    const int beyond = toSteps(deadZone + 1.0);
    if (action == SliderSingleStepAdd || action == SliderPageStepAdd)
        setSliderPosition(std::max(sliderPosition(), beyond));
    if (action == SliderSingleStepSub || action == SliderPageStepSub)
        setSliderPosition(std::min(sliderPosition(), -beyond));
}

QSize PointSlider::sizeHint() const {
    const QSize styled = QSlider::sizeHint();
    return {styled.width(), std::max(styled.height(), 20)};
}

QRect PointSlider::knobRect() const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
}

void PointSlider::mousePressEvent(QMouseEvent* event) {
    const QRect knob = knobRect();
    const QPoint place = event->position().toPoint();
    if (event->buttons() == Qt::LeftButton && minimum() < maximum() && !knob.contains(place)) {
        setSliderDown(true); // before anybody hears of the new value
        QStyleOptionSlider option;
        initStyleOption(&option);
        const QRect groove =
            style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderGroove, this);
        setValue(QStyle::sliderValueFromPosition(minimum(), maximum(),
                                                 place.x() - groove.left() - knob.width() / 2,
                                                 groove.width() - knob.width(), option.upsideDown));
    }
    QSlider::mousePressEvent(event);
}

// Turning the wheel over the window scrolls it; it must not change settings on the way.
void PointSlider::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QSlider::wheelEvent(event);
    } else {
        event->ignore();
    }
}

void PointSlider::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (!isEnabled()) painter.setOpacity(disabledOpacity);
    QRectF knob(knobRect());
    const double diameter = std::min(knob.width(), knob.height());
    // At the ends there has to be room for the ring.
    const double middle = width() / 2.0;
    const double squeeze = 1.0 - 2.0 * ringWidth / (width() - diameter);
    const QPointF center(middle + (knob.center().x() - middle) * squeeze, height() / 2.0);
    knob = QRectF(center - QPointF(diameter, diameter) / 2, QSizeF(diameter, diameter));

    const QRectF groove(0, center.y() - grooveThickness / 2, width(), grooveThickness);
    const double radius = grooveThickness / 2;
    painter.setBrush(SystemPalette::track);
    painter.drawRoundedRect(groove, radius, radius);
    painter.setBrush(SystemPalette::blue);
    QRectF passed = groove;
    isRightToLeft() ? passed.setLeft(center.x()) : passed.setRight(center.x());
    painter.drawRoundedRect(passed, radius, radius);

    if (showsFocus(*this)) {
        painter.setBrush(SystemPalette::focusRing);
        painter.drawEllipse(knob.adjusted(-ringWidth, -ringWidth, ringWidth, ringWidth));
    }
    painter.setBrush(isSliderDown() ? SystemPalette::pressedKnob : SystemPalette::white);
    painter.drawEllipse(knob);
}

} // namespace tessaline
