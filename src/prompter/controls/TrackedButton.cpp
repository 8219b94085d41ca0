#include "prompter/controls/TrackedButton.h"

#include "appearance/SystemPalette.h"
#include "controls/KeyboardFocus.h"

#include <QPainter>
#include <QPainterPath>

namespace tessaline {

namespace {

constexpr double ringWidth = 1.5;
constexpr double ringAlpha = 0.8;

} // namespace

TrackedButton::TrackedButton(QWidget* parent) : QAbstractButton(parent) {
    setFocusPolicy(Qt::TabFocus);
}

bool TrackedButton::isHovered() const {
    return hovered;
}

bool TrackedButton::isPressed() const {
    return held || isDown();
}

void TrackedButton::paintFocusRing(QPainter& painter, const QPainterPath& outline) const {
    if (!showsFocus(*this)) return;
    painter.strokePath(outline,
                       QPen(SystemPalette::withAlpha(SystemPalette::blue, ringAlpha), ringWidth));
}

// The pointer enters and leaves only while no mouse button is held, so either also ends a press
// whose release went elsewhere.
void TrackedButton::enterEvent(QEnterEvent* event) {
    QAbstractButton::enterEvent(event);
    track(true, false);
}

void TrackedButton::leaveEvent(QEvent* event) {
    QAbstractButton::leaveEvent(event);
    track(false, false);
}

void TrackedButton::mousePressEvent(QMouseEvent* event) {
    QAbstractButton::mousePressEvent(event);
    track(hovered, isDown());
}

// First, because the action that the release sends may destroy the button.
void TrackedButton::mouseReleaseEvent(QMouseEvent* event) {
    track(hovered, false);
    QAbstractButton::mouseReleaseEvent(event);
}

void TrackedButton::hideEvent(QHideEvent* event) {
    QAbstractButton::hideEvent(event);
    setDown(false);
    track(false, false);
}

void TrackedButton::changeEvent(QEvent* event) {
    QAbstractButton::changeEvent(event);
    if (event->type() == QEvent::EnabledChange) track(hovered, false);
}

void TrackedButton::track(bool pointerInside, bool buttonHeld) {
    if (hovered == pointerInside && held == buttonHeld) return;
    hovered = pointerInside;
    held = buttonHeld;
    update();
}

} // namespace tessaline
