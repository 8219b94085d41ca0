#include "appearance/SystemPalette.h"

#include "render/TextAttributes.h"

namespace tessaline {

QColor SystemPalette::amber() {
    return QColor::fromRgbF(AmberComponents::red, AmberComponents::green, AmberComponents::blue);
}

QColor SystemPalette::withAlpha(QColor color, double alpha) {
    color.setAlphaF(alpha);
    return color;
}

} // namespace tessaline
