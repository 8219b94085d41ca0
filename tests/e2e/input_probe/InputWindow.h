#pragma once

#include <QWidget>

namespace tessaline {

/// A window that reports the wheel, the buttons and the keys that reach it, a line each, on
/// standard output. Has a text field when asked to.
class InputWindow final : public QWidget {
public:
    explicit InputWindow(bool hasTextField);

protected:
    void wheelEvent(QWheelEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace tessaline
