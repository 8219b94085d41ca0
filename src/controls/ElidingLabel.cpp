#include "controls/ElidingLabel.h"

#include <QFontMetricsF>
#include <QPainter>

namespace tessaline {

ElidingLabel::ElidingLabel(Qt::TextElideMode elideMode, QWidget* parent)
    : QLabel(parent), mode(elideMode) {
    setTextFormat(Qt::PlainText);
}

void ElidingLabel::showWithToolTip(const QString& whole) {
    setText(whole);
    const bool fits = QFontMetricsF(font()).horizontalAdvance(whole) <= contentsRect().width();
    setToolTip(fits ? QString() : whole.toHtmlEscaped());
}

QSize ElidingLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void ElidingLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawFrame(&painter);
    const QRect inside = contentsRect();
    const QString oneLine = QString(text()).replace(u'\n', u' ');
    const QString shown = QFontMetricsF(font()).elidedText(oneLine, mode, inside.width());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(inside, int(alignment()), shown);
}

} // namespace tessaline
