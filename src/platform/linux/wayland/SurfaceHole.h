#pragma once

#include <QRegion>
#include <QWidget>

namespace tessaline {

/// Shows what lies below a window where its mask leaves something out: to a compositor, a mask is
/// about the mouse alone.
class SurfaceHole final : public QWidget {
public:
    /// A part of the window, above its other ones.
    explicit SurfaceHole(QWidget& window);

    /// Follows the window's size and mask.
    void update();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QRegion hole;
};

} // namespace tessaline
