#include "ui/controls/Switch.h"

#include "appearance/SystemPalette.h"
#include "controls/KeyboardFocus.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QPainter>
#include <QStyle>
#include <QVariantAnimation>

namespace tessaline {

namespace {

constexpr QSizeF track{36, 20};
constexpr double knobMargin = 2.0;
constexpr double ringWidth = 2.0;
constexpr double disabledOpacity = 0.5;

QColor blend(const QColor& from, const QColor& to, double share) {
    const auto mix = [share](float a, float b) { return float(a + (b - a) * share); };
    return QColor::fromRgbF(mix(from.redF(), to.redF()), mix(from.greenF(), to.greenF()),
                            mix(from.blueF(), to.blueF()), mix(from.alphaF(), to.alphaF()));
}

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

QAccessibleInterface* makeInterface(const QString&, QObject* object) {
    auto* control = qobject_cast<Switch*>(object);
    return control ? new SwitchAccessible(*control) : nullptr;
}

} // namespace

Switch::Switch(const QString& accessibleName, QWidget* parent)
    : QAbstractButton(parent), slide(new QVariantAnimation(this)) {
    QAccessible::installFactory(makeInterface);
    setCheckable(true);
    setAccessibleName(accessibleName);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(slide, &QVariantAnimation::valueChanged, this, [this](const QVariant& place) {
        knob = place.toDouble();
        update();
    });
    connect(this, &QAbstractButton::toggled, this, &Switch::follow);
}

Switch::~Switch() = default;

QSize Switch::sizeHint() const {
    return track.toSize();
}

bool Switch::hitButton(const QPoint& position) const {
    return rect().contains(position);
}

void Switch::keyPressEvent(QKeyEvent* event) {
    // Some desktops press the focused button on Return; in our windows that key is the default
    // button's.
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        event->ignore();
        return;
    }
    QAbstractButton::keyPressEvent(event);
}

void Switch::follow(bool on) {
    slide->stop();
    const int duration = style()->styleHint(QStyle::SH_Widget_Animation_Duration, nullptr, this);
    if (!isVisible() || duration <= 0) {
        knob = on ? 1.0 : 0.0;
        update();
        return;
    }
    slide->setDuration(duration);
    slide->setEasingCurve(QEasingCurve::InOutQuad);
    slide->setStartValue(knob);
    slide->setEndValue(on ? 1.0 : 0.0);
    slide->start();
}

void Switch::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    if (!isEnabled()) painter.setOpacity(disabledOpacity);
    QRectF ground(QPointF(), track);
    ground.moveCenter(QRectF(rect()).center());
    const double radius = ground.height() / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(blend(SystemPalette::track, SystemPalette::blue, knob));
    painter.drawRoundedRect(ground, radius, radius);

    const double diameter = ground.height() - 2 * knobMargin;
    const double travel = ground.width() - 2 * knobMargin - diameter;
    painter.setBrush(isDown() ? QColor(SystemPalette::pressedKnob) : SystemPalette::white);
    painter.drawEllipse(QRectF(ground.left() + knobMargin + travel * knob,
                               ground.top() + knobMargin, diameter, diameter));
    if (!showsFocus(*this)) return;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(SystemPalette::focusRing, ringWidth));
    const double in = ringWidth / 2;
    painter.drawRoundedRect(ground.adjusted(in, in, -in, -in), radius - in, radius - in);
}

} // namespace tessaline
