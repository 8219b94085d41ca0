#include "platform/linux/wayland/LayerTitleBar.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLayout>
#include <QMouseEvent>
#include <QToolButton>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int barHeight = 30;
constexpr int buttonSize = 22;
constexpr int sideMargin = 6;

const QString buttonStyle =
    u"QToolButton { border: none; border-radius: 11px; color: rgba(255, 255, 255, 150); }"
    "QToolButton:hover { background: rgba(255, 255, 255, 40); color: white; }"
    "QToolButton:pressed { background: rgba(255, 255, 255, 70); color: white; }"_s;

QWidget* widgetOf(const QWindow& window) {
    const auto widgets = QApplication::topLevelWidgets();
    const auto found = std::find_if(widgets.begin(), widgets.end(), [&window](QWidget* widget) {
        return widget->windowHandle() == &window;
    });
    return found == widgets.end() ? nullptr : *found;
}

bool isFramedByDesktops(const QWindow& window) {
    const bool isOrdinary = window.type() == Qt::Window || window.type() == Qt::Dialog;
    return isOrdinary && !window.flags().testFlag(Qt::FramelessWindowHint);
}

} // namespace

LayerTitleBar::LayerTitleBar(QWidget& window, CornerOfMouse corner)
    : QWidget(&window), cornerOfMouse(std::move(corner)) {
    setFixedHeight(barHeight);
    auto* title = new QLabel(window.windowTitle(), this);
    title->setAlignment(Qt::AlignCenter);
    title->setForegroundRole(QPalette::PlaceholderText);
    connect(&window, &QWidget::windowTitleChanged, title, &QLabel::setText);
    auto* close = new QToolButton(this);
    close->setText(u"✕"_s);
    close->setAccessibleName(tr("Close"));
    close->setToolTip(tr("Close"));
    close->setFocusPolicy(Qt::NoFocus);
    close->setFixedSize(buttonSize, buttonSize);
    close->setStyleSheet(buttonStyle);
    connect(close, &QToolButton::clicked, &window, &QWidget::close);

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(sideMargin + buttonSize, 0, sideMargin, 0);
    row->addWidget(title, 1);
    row->addWidget(close);
}

void LayerTitleBar::addTo(const QWindow& window, const CornerOfMouse& corner) {
    if (!isFramedByDesktops(window)) return;
    QWidget* widget = widgetOf(window);
    if (!widget || !widget->layout() || widget->layout()->menuBar()) return;
    widget->layout()->setMenuBar(new LayerTitleBar(*widget, corner));
}

void LayerTitleBar::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) grip = event->position().toPoint();
}

void LayerTitleBar::mouseMoveEvent(QMouseEvent* event) {
    if (grip) window()->move(cornerOfMouse() + event->position().toPoint() - *grip);
}

void LayerTitleBar::mouseReleaseEvent(QMouseEvent* /*event*/) {
    grip.reset();
}

} // namespace tessaline
