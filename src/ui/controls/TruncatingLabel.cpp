#include "ui/controls/TruncatingLabel.h"

#include <QFontMetricsF>
#include <QPainter>

namespace tessaline {

TruncatingLabel::TruncatingLabel(Qt::TextElideMode elideMode, int width, QWidget* parent)
    : QLabel(parent), mode(elideMode) {
    setTextFormat(Qt::PlainText);
    setFixedWidth(width);
}

void TruncatingLabel::showText(const QString& whole) {
    setText(whole);
    const bool fits = QFontMetricsF(font()).horizontalAdvance(whole) <= contentsRect().width();
    setToolTip(fits ? QString() : whole.toHtmlEscaped());
}

QSize TruncatingLabel::minimumSizeHint() const {
    return {0, QLabel::minimumSizeHint().height()};
}

void TruncatingLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawFrame(&painter);
    const QRect inside = contentsRect();
    const QString oneLine = QString(text()).replace(u'\n', u' ');
    const QString shown = QFontMetricsF(font()).elidedText(oneLine, mode, inside.width());
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(inside, int(Qt::AlignVCenter | Qt::AlignLeading), shown);
}

} // namespace tessaline
