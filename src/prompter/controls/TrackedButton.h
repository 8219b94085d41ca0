#pragma once

#include <QAbstractButton>

class QPainter;
class QPainterPath;

namespace tessaline {

/// A button that knows whether the pointer is inside it and whether it is being pressed, and
/// redraws itself when either changes. It takes the keyboard focus by Tab only, so that a click
/// leaves the focus where it was.
class TrackedButton : public QAbstractButton {
    Q_OBJECT

public:
    explicit TrackedButton(QWidget* parent = nullptr);

    /// Whether the pointer is inside.
    bool isHovered() const;

    /// Whether a press is going on: from mouse down to mouse up, also while the pointer strays
    /// outside, or while Space is held.
    bool isPressed() const;

protected:
    /// Draws a thin ring along the outline while the button has the focus from the keyboard.
    void paintFocusRing(QPainter& painter, const QPainterPath& outline) const;

    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void track(bool pointerInside, bool buttonHeld);

    bool hovered = false;
    bool held = false;
};

} // namespace tessaline
