#include "prompter/controls/ThemedScroller.h"

#include "prompter/controls/ThemedScrollerStyle.h"

#include <QPainter>
#include <QStyleOptionSlider>
#include <QWheelEvent>

namespace tessaline {

namespace {

constexpr double knobInset = 1.0;

} // namespace

ThemedScroller::ThemedScroller(QWidget* parent)
    : QScrollBar(Qt::Vertical, parent), fade([this] { update(); }) {
    auto* style = new ThemedScrollerStyle;
    style->setParent(this);
    setStyle(style);
    setAttribute(Qt::WA_OpaquePaintEvent, false);
    setContextMenuPolicy(Qt::NoContextMenu);
    connect(this, &QAbstractSlider::actionTriggered, this, &ThemedScroller::reveal);
}

void ThemedScroller::reveal() {
    fade.reveal();
}

double ThemedScroller::opacity() const {
    return fade.opacity();
}

QRectF ThemedScroller::slotRect() const {
    return partRect(QStyle::SC_ScrollBarGroove);
}

QRectF ThemedScroller::knobRect() const {
    return QRectF(partRect(QStyle::SC_ScrollBarSlider))
        .adjusted(knobInset, knobInset, -knobInset, -knobInset);
}

void ThemedScroller::paintEvent(QPaintEvent*) {
    if (opacity() <= 0.0 || minimum() == maximum()) return;
    paintedKnob = knobRect();
    const double radius = paintedKnob.width() / 2;

    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(opacity());
    painter.fillRect(slotRect(), slotColor);
    painter.setPen(Qt::NoPen);
    painter.setBrush(knobColor);
    painter.drawRoundedRect(paintedKnob, radius, radius);
}

void ThemedScroller::enterEvent(QEnterEvent* event) {
    QScrollBar::enterEvent(event);
    fade.hold();
}

void ThemedScroller::leaveEvent(QEvent* event) {
    QScrollBar::leaveEvent(event);
    fade.letGo();
}

void ThemedScroller::hideEvent(QHideEvent* event) {
    QScrollBar::hideEvent(event);
    fade.conceal();
}

// It would scroll by eighths of a point, and by pages with Control.
void ThemedScroller::wheelEvent(QWheelEvent* event) {
    event->ignore();
}

// Scrolling calls this for every frame, and the bases would repaint each time.
void ThemedScroller::sliderChange(SliderChange change) {
    const bool onlyMoves = change == SliderValueChange || change == SliderRangeChange;
    if (onlyMoves && (opacity() <= 0.0 || knobRect() == paintedKnob)) return;
    QScrollBar::sliderChange(change);
}

QRect ThemedScroller::partRect(QStyle::SubControl part) const {
    QStyleOptionSlider option;
    initStyleOption(&option);
    return style()->subControlRect(QStyle::CC_ScrollBar, &option, part, this);
}

} // namespace tessaline
