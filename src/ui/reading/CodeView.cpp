#include "ui/reading/CodeView.h"

#include <QPainter>

#include <cmath>

namespace tessaline {

namespace {

constexpr int pointsPerSquare = 5;
constexpr int quietSquares = 4; // that cameras need around it

} // namespace

CodeView::CodeView(const QString& accessibleName) {
    setAccessibleName(accessibleName);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QSize CodeView::sizeHint() const {
    const int side = (code.size + 2 * quietSquares) * pointsPerSquare;
    return {side, side};
}

void CodeView::show(const QString& text) {
    if (text == shown) return;
    shown = text;
    code = QrCode::of(text);
    updateGeometry();
    update();
}

void CodeView::paintEvent(QPaintEvent* /*event*/) {
    if (code.size == 0) return;
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    // Squares of whole pixels of the screen have sharp edges.
    const qreal ratio = devicePixelRatioF();
    const qreal square = std::floor(pointsPerSquare * ratio) / ratio;
    const qreal start = std::round((width() - square * code.size) / 2 * ratio) / ratio;
    for (int row = 0; row < code.size; ++row) {
        for (int column = 0; column < code.size; ++column) {
            if (!code.isDark(row, column)) continue;
            painter.fillRect(QRectF(start + column * square, start + row * square, square, square),
                             Qt::black);
        }
    }
}

} // namespace tessaline
