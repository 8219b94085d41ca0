#include "ui/onboarding/Card.h"

#include "appearance/SystemPalette.h"

#include <QPainter>

namespace tessaline {

namespace {

constexpr double cornerRadius = 8.0;

} // namespace

Card::Card(QWidget* parent) : QWidget(parent) {}

void Card::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(SystemPalette::controlBackground);
    painter.drawRoundedRect(rect(), cornerRadius, cornerRadius);
}

} // namespace tessaline
