#pragma once

#include <QPoint>
#include <QWidget>

#include <functional>
#include <optional>

class QWindow;

namespace tessaline {

/// What the desktop puts around ordinary windows and not around those that hang over it: the title,
/// a place to drag the window by, and a button that closes it.
class LayerTitleBar final : public QWidget {
public:
    /// Tells where the window was for whoever said where the mouse is.
    using CornerOfMouse = std::function<QPoint()>;

    LayerTitleBar(QWidget& window, CornerOfMouse cornerOfMouse);

    /// Puts one into the window above its content, if it is one that desktops put one around.
    static void addTo(const QWindow& window, const CornerOfMouse& cornerOfMouse);

protected:
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    CornerOfMouse cornerOfMouse;
    std::optional<QPoint> grip; ///< where it is dragged by
};

} // namespace tessaline
