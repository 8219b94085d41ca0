#include "prompter/controls/ThemedScroller.h"

#include <QCommonStyle>
#include <QPainter>
#include <QStyleOptionSlider>
#include <QWheelEvent>

#include <algorithm>

namespace tessaline {

namespace {

constexpr double knobInset = 1.0;
constexpr int thickness = 8;
constexpr int shortestKnob = 24;

QRect knobIn(const QRect& slot, const QStyleOptionSlider& bar) {
    // In floating point, because a range of 2^31 and a page together exceed an int.
    const double range = static_cast<double>(bar.maximum) - bar.minimum;
    const double whole = range + bar.pageStep;
    const double share = whole > 0 ? bar.pageStep / whole : 1.0;
    const int wanted = std::max(qRound(slot.height() * share), shortestKnob);
    const int length = std::min(wanted, slot.height());
    const int offset = QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                       slot.height() - length, bar.upsideDown);
    return {slot.left(), slot.top() + offset, slot.width(), length};
}

/// The measures of a vertical overlay scroller: thin, lying on top of the content, without line
/// buttons; the whole bounds are the slot.
class ThemedScrollerStyle final : public QCommonStyle {
public:
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
};

int ThemedScrollerStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                                     const QWidget* widget) const {
    switch (metric) {
    case PM_ScrollBarExtent:
    case PM_ScrollView_ScrollBarOverlap:
        return thickness;
    case PM_ScrollBarSliderMin:
        return shortestKnob;
    default:
        return QCommonStyle::pixelMetric(metric, option, widget);
    }
}

QRect ThemedScrollerStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                          SubControl part, const QWidget* widget) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option);
    if (control != CC_ScrollBar || !bar)
        return QCommonStyle::subControlRect(control, option, part, widget);

    const QRect slot = bar->rect;
    const QRect knob = knobIn(slot, *bar);
    const QRect above(slot.left(), slot.top(), slot.width(), knob.top() - slot.top());
    const QRect below(slot.left(), knob.bottom() + 1, slot.width(), slot.bottom() - knob.bottom());
    switch (part) {
    case SC_ScrollBarGroove:
        return slot;
    case SC_ScrollBarSlider:
        return knob;
    case SC_ScrollBarSubPage:
        return bar->upsideDown ? below : above;
    case SC_ScrollBarAddPage:
        return bar->upsideDown ? above : below;
    default:
        return {};
    }
}

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
