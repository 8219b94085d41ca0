#include "ui/SideWindow.h"

#include "appearance/SystemPalette.h"
#include "ui/WindowLook.h"
#include "ui/controls/FittingScrollArea.h"
#include "ui/controls/PointSlider.h"

#include <QShowEvent>

#include <algorithm>

namespace tessaline {

SideWindow::SideWindow(const QString& title)
    : QWidget(nullptr, Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                           Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint |
                           Qt::WindowCloseButtonHint) {
    setWindowTitle(title);
    setDarkLook(*this, SystemPalette::settingsBackground);
}

QSize SideWindow::wholeSize() const {
    return findChild<FittingScrollArea*>()->wholeSize();
}

int SideWindow::scrollBarWidth() const {
    return findChild<FittingScrollArea*>()->scrollBarWidth();
}

void SideWindow::fitInto(int room) {
    fitToContent(*this, room);
}

bool SideWindow::isSliderHeld() const {
    const auto sliders = findChildren<PointSlider*>();
    return std::any_of(sliders.begin(), sliders.end(),
                       [](const PointSlider* slider) { return slider->isSliderDown(); });
}

void SideWindow::announceSize() const {
    if (onSizeChanged) onSizeChanged();
}

void SideWindow::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous()) focusNoControl(*this);
}

void SideWindow::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    announceSize();
}

} // namespace tessaline
