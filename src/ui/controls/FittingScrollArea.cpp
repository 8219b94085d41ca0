#include "ui/controls/FittingScrollArea.h"

#include <QEvent>
#include <QKeyEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int leastRoom = 100;

/// Thin and without arrows, so that it looks the same beside our controls on every desktop.
const QString barStyle =
    u"QScrollBar:vertical { background: transparent; width: 10px; }"
    "QScrollBar::handle:vertical { background: rgba(255, 255, 255, 60);"
    " border-radius: 3px; margin: 2px; min-height: 24px; }"
    "QScrollBar::handle:vertical:hover { background: rgba(255, 255, 255, 110); }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical"
    " { background: transparent; }"_s;

/// Where a part of the content stands in it.
QRect placeIn(const QWidget& content, const QWidget& part) {
    return {part.mapTo(&content, QPoint()), part.size()};
}

} // namespace

FittingScrollArea::FittingScrollArea(QWidget* content, const QSize& leastContent,
                                     QWidget* contentFooter, QWidget* parent)
    : QScrollArea(parent), least(leastContent), footer(contentFooter) {
    content->setFixedWidth(least.width());
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::NoFocus);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    verticalScrollBar()->setStyleSheet(barStyle);
    setWidgetResizable(true);
    setWidget(content);
    fit();
}

int FittingScrollArea::contentHeight() const {
    const QLayout& layout = *widget()->layout();
    return layout.hasHeightForWidth() ? layout.totalHeightForWidth(least.width())
                                      : layout.totalSizeHint().height();
}

int FittingScrollArea::footerHeight() const {
    return footer ? footer->sizeHint().height() : 0;
}

void FittingScrollArea::setRoom(int points) {
    givenRoom = points;
    updateGeometry();
}

int FittingScrollArea::room() const {
    const int screenRoom = screen()->availableGeometry().height() - titleBarAllowance;
    return std::max(givenRoom.value_or(screenRoom), leastRoom);
}

QSize FittingScrollArea::wholeSize() const {
    return {least.width(), std::max(contentHeight() + footerHeight(), least.height())};
}

int FittingScrollArea::scrollBarWidth() const {
    return verticalScrollBar()->sizeHint().width();
}

QSize FittingScrollArea::sizeHint() const {
    const QSize whole = wholeSize();
    if (whole.height() <= room()) return whole;
    return {whole.width() + scrollBarWidth(), room()};
}

// Without a height of its own the content would be squeezed before anything scrolls.
void FittingScrollArea::fit() {
    widget()->setMinimumHeight(contentHeight());
    placeFooter();
    updateGeometry();
}

void FittingScrollArea::placeFooter() {
    if (!footer) return;
    const int top = std::min(contentHeight(), height() - footerHeight());
    setViewportMargins(0, 0, 0, height() - top);
    footer->setGeometry(x(), y() + top, least.width(), footerHeight());
}

void FittingScrollArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    placeFooter();
    showFocused();
}

bool FittingScrollArea::focusNextPrevChild(bool next) {
    const bool moved = QScrollArea::focusNextPrevChild(next);
    if (moved) showFocused();
    return moved;
}

// Beyond the first and the last control there may be more to see, and no other key leads there.
void FittingScrollArea::showFocused() {
    QWidget* focused = widget()->focusWidget();
    if (!focused) return;
    const QRect place = placeIn(*widget(), *focused);
    bool isFirst = true;
    bool isLast = true;
    for (const QWidget* control : widget()->findChildren<QWidget*>()) {
        if (!control->isVisible() || !control->isEnabled()) continue;
        if (!(control->focusPolicy() & Qt::TabFocus)) continue;
        isFirst = isFirst && placeIn(*widget(), *control).bottom() >= place.top();
        isLast = isLast && placeIn(*widget(), *control).top() <= place.bottom();
    }
    if (isFirst) ensureVisible(0, 0, 0, 0);
    if (isLast) ensureVisible(0, widget()->height(), 0, 0);
    ensureWidgetVisible(focused);
}

void FittingScrollArea::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Home) {
        verticalScrollBar()->triggerAction(QScrollBar::SliderToMinimum);
    } else if (event->key() == Qt::Key_End) {
        verticalScrollBar()->triggerAction(QScrollBar::SliderToMaximum);
    } else {
        QScrollArea::keyPressEvent(event);
    }
}

bool FittingScrollArea::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) fit();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace tessaline
