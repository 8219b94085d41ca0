#include "ui/WindowLook.h"

#include "appearance/DarkPalette.h"
#include "ui/controls/FittingScrollArea.h"
#include "ui/controls/Rows.h"

#include <QAccessibleWidget>
#include <QKeySequence>
#include <QShortcut>

namespace tessaline {

namespace {

// To screen readers a plain widget is a group without a meaning, even if it is a window.
QAccessibleInterface* makeWindowInterface(const QString&, QObject* object) {
    auto* window = qobject_cast<QWidget*>(object);
    if (!window || !window->isWindow()) return nullptr;
    const auto* filling = window->findChild<FittingScrollArea*>({}, Qt::FindDirectChildrenOnly);
    return filling ? new QAccessibleWidget(window, QAccessible::Window) : nullptr;
}

} // namespace

void setDarkLook(QWidget& window, const QColor& background) {
    QPalette palette = darkPalette();
    palette.setColor(QPalette::Window, background);
    window.setPalette(palette);
}

void fillWithContent(QWidget& window, QWidget* content, const QSize& least, QWidget* footer) {
    QAccessible::installFactory(makeWindowInterface);
    QVBoxLayout* column = layOutColumn(window, 0);
    column->addWidget(new FittingScrollArea(content, least, footer));
    if (footer) footer->setParent(&window);
    column->setSizeConstraint(QLayout::SetFixedSize);
    QObject::connect(new QShortcut(QKeySequence::Close, &window), &QShortcut::activated, &window,
                     &QWidget::close);
    fitToContent(window);
}

void focusNoControl(QWidget& window) {
    window.findChild<FittingScrollArea*>()->setFocus();
}

// A layout by itself notices changes inside only while its window is on screen.
void fitToContent(QWidget& window) {
    const QList<QWidget*> parts = window.findChildren<QWidget*>();
    for (auto part = parts.crbegin(); part != parts.crend(); ++part)
        if ((*part)->window() == &window) (*part)->updateGeometry();
    window.findChild<FittingScrollArea*>()->fit();
    window.layout()->invalidate();
    window.layout()->activate();
}

void fitToContent(QWidget& window, int room) {
    window.findChild<FittingScrollArea*>()->setRoom(room);
    fitToContent(window);
}

} // namespace tessaline
