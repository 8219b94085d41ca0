#include "prompter/covers/BlackCover.h"

#include "appearance/SystemPalette.h"

#include <QPainter>

namespace tessaline {

BlackCover::BlackCover(QWidget* parent) : Cover(parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    setAccessibleName(tr("The text is blacked out"));
    setAccessibleDescription(tr("The key B or a click brings it back"));
}

void BlackCover::setBlack(bool on) {
    setVisible(on);
    if (!on) return;
    raise();
    announce();
}

void BlackCover::paintEvent(QPaintEvent*) {
    QPainter(this).fillRect(rect(), SystemPalette::black);
}

void BlackCover::mousePressEvent(QMouseEvent*) {
    Q_EMIT pressed();
}

} // namespace tessaline
