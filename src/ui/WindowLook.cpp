#include "ui/WindowLook.h"

#include "appearance/DarkPalette.h"
#include "ui/controls/FittingScrollArea.h"
#include "ui/controls/Rows.h"

#include <QKeySequence>
#include <QShortcut>

namespace tessaline {

void setDarkLook(QWidget& window, const QColor& background) {
    QPalette palette = darkPalette();
    palette.setColor(QPalette::Window, background);
    window.setPalette(palette);
}

void fillWithContent(QWidget& window, QWidget* content, const QSize& least) {
    QVBoxLayout* column = layOutColumn(window, 0);
    column->addWidget(new FittingScrollArea(content, least));
    column->setSizeConstraint(QLayout::SetFixedSize);
    QObject::connect(new QShortcut(QKeySequence::Close, &window), &QShortcut::activated, &window,
                     &QWidget::close);
    fitToContent(window);
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

} // namespace tessaline
