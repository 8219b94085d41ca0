#include "support/Contrast.h"

#include <cmath>

namespace tessaline {
namespace {

/// What a colour with an alpha looks like on an opaque one.
QColor over(const QColor& ground, const QColor& color) {
    const auto mixed = [alpha = color.alphaF()](float above, float below) {
        return above * alpha + below * (1 - alpha);
    };
    return QColor::fromRgbF(mixed(color.redF(), ground.redF()),
                            mixed(color.greenF(), ground.greenF()),
                            mixed(color.blueF(), ground.blueF()));
}

double luminance(const QColor& color) {
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

} // namespace

double contrast(const QColor& ground, const QColor& text) {
    return (luminance(over(ground, text)) + 0.05) / (luminance(ground) + 0.05);
}

} // namespace tessaline
