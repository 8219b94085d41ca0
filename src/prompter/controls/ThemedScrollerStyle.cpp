#include "prompter/controls/ThemedScrollerStyle.h"

#include <QStyleOptionSlider>

#include <algorithm>

namespace tessaline {

namespace {

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

} // namespace

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
    switch (part) {
    case SC_ScrollBarGroove:
        return slot;
    case SC_ScrollBarSlider:
        return knob;
    case SC_ScrollBarSubPage:
        return {slot.left(), slot.top(), slot.width(), knob.top() - slot.top()};
    case SC_ScrollBarAddPage:
        return {slot.left(), knob.bottom() + 1, slot.width(), slot.bottom() - knob.bottom()};
    default:
        return {};
    }
}

} // namespace tessaline
