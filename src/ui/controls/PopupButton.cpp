#include "ui/controls/PopupButton.h"

#include "appearance/DarkPalette.h"
#include "appearance/PointFont.h"
#include "appearance/SystemPalette.h"
#include "ui/controls/Bezel.h"

#include <QAbstractItemView>
#include <QPainter>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>

namespace tessaline {

namespace {

constexpr int widestList = 480;
constexpr int paddingAboveAndBelow = 4;

} // namespace

PopupButton::PopupButton(const QString& accessibleName, int width, QWidget* parent)
    : QComboBox(parent) {
    setAccessibleName(accessibleName);
    setFont(systemFont(13));
    setFixedWidth(width);
    setFocusPolicy(Qt::StrongFocus);
}

bool PopupButton::selectItemCarrying(const QVariant& value) {
    const int index = findData(value);
    if (index < 0) return false;
    setCurrentIndex(index);
    return true;
}

// The list may be wider than the button: titles are told apart there.
void PopupButton::showPopup() {
    // The list is a window of its own and would take the desktop's colours.
    view()->setPalette(darkPalette());
    view()->window()->setPalette(darkPalette());
    view()->setTextElideMode(Qt::ElideMiddle);
    const int wanted = view()->sizeHintForColumn(modelColumn()) + 2 * view()->frameWidth();
    view()->setMinimumWidth(std::clamp(wanted, width(), widestList));
    QComboBox::showPopup();
}

QSize PopupButton::sizeHint() const {
    return {QComboBox::sizeHint().width(), fontMetrics().height() + 2 * paddingAboveAndBelow};
}

void PopupButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawBezel(painter, *this, SystemPalette::button, view()->isVisible());
    painter.setRenderHint(QPainter::Antialiasing);
    if (isRightToLeft()) {
        painter.translate(width(), 0);
        painter.scale(-1, 1);
    }
    drawArrows(painter, {double(width() - bezelPadding - arrowReach), height() / 2.0});
    painter.resetTransform();
    painter.setPen(isEnabled() ? SystemPalette::label : SystemPalette::disabledLabel);
    const QRect line = rect().adjusted(bezelPadding, 0, -2 * bezelPadding - 2 * arrowReach, 0);
    painter.drawText(QStyle::visualRect(layoutDirection(), rect(), line),
                     int(Qt::AlignVCenter | Qt::AlignLeading),
                     fontMetrics().elidedText(currentText(), Qt::ElideRight, line.width()));
}

// Turning the wheel over the window scrolls it; it must not change settings on the way.
void PopupButton::wheelEvent(QWheelEvent* event) {
    if (hasFocus()) {
        QComboBox::wheelEvent(event);
    } else {
        event->ignore();
    }
}

} // namespace tessaline
