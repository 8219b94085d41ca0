#include "ui/controls/FittingScrollArea.h"

#include <QEvent>
#include <QLayout>
#include <QScreen>
#include <QScrollBar>

#include <algorithm>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int titleBarAllowance = 40;
constexpr int leastRoom = 240;

/// Thin and without arrows, so that it looks the same beside our controls on every desktop.
const QString barStyle =
    u"QScrollBar:vertical { background: transparent; width: 10px; }"
    "QScrollBar::handle:vertical { background: rgba(255, 255, 255, 60);"
    " border-radius: 3px; margin: 2px; min-height: 24px; }"
    "QScrollBar::handle:vertical:hover { background: rgba(255, 255, 255, 110); }"
    "QScrollBar::add-line:vertical, QScrollBar::sub-line:vertical { height: 0; }"
    "QScrollBar::add-page:vertical, QScrollBar::sub-page:vertical"
    " { background: transparent; }"_s;

} // namespace

FittingScrollArea::FittingScrollArea(QWidget* content, const QSize& leastContent, QWidget* parent)
    : QScrollArea(parent), least(leastContent) {
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
    const int laidOut = layout.hasHeightForWidth() ? layout.totalHeightForWidth(least.width())
                                                   : layout.totalSizeHint().height();
    return std::max(laidOut, least.height());
}

void FittingScrollArea::setRoom(std::optional<int> points) {
    room = points;
    updateGeometry();
}

int FittingScrollArea::roomForContent() const {
    const int given = room ? *room : screen()->availableGeometry().height();
    return std::max(given, leastRoom) - titleBarAllowance;
}

QSize FittingScrollArea::sizeHint() const {
    const QSize whole(least.width(), contentHeight());
    const int limit = roomForContent();
    if (whole.height() <= limit) return whole;
    return {whole.width() + verticalScrollBar()->sizeHint().width(), limit};
}

// Without a height of its own the content would be squeezed before anything scrolls.
void FittingScrollArea::fit() {
    widget()->setMinimumHeight(contentHeight());
    updateGeometry();
}

void FittingScrollArea::resizeEvent(QResizeEvent* event) {
    QScrollArea::resizeEvent(event);
    if (QWidget* focused = widget()->focusWidget()) ensureWidgetVisible(focused);
}

bool FittingScrollArea::eventFilter(QObject* watched, QEvent* event) {
    if (watched == widget() && event->type() == QEvent::LayoutRequest) fit();
    return QScrollArea::eventFilter(watched, event);
}

} // namespace tessaline
