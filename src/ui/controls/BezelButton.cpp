#include "ui/controls/BezelButton.h"

#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "ui/controls/Bezel.h"

#include <QFontMetricsF>
#include <QPainter>

#include <cmath>

namespace tessaline {

namespace {

constexpr int paddingAboveAndBelow = 4;

} // namespace

BezelButton::BezelButton(const QString& title, double points, QWidget* parent)
    : QPushButton(title, parent) {
    setFont(systemFont(points));
    setSizePolicy(QSizePolicy::Minimum, QSizePolicy::Fixed);
}

QSize BezelButton::sizeHint() const {
    const QFontMetricsF metrics(font());
    return {int(std::ceil(metrics.horizontalAdvance(text()))) + 2 * bezelPadding,
            int(std::ceil(metrics.height())) + 2 * paddingAboveAndBelow};
}

void BezelButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const bool standsOut = isDefault() && isEnabled();
    drawBezel(painter, *this, standsOut ? SystemPalette::blue : SystemPalette::button, isDown());
    painter.setPen(!isEnabled() ? SystemPalette::disabledLabel
                   : standsOut  ? SystemPalette::white
                                : SystemPalette::label);
    painter.drawText(rect(), Qt::AlignCenter, text());
}

} // namespace tessaline
