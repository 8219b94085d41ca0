#include "ProbeWindow.h"

#include "ProbeReport.h"

#include <QEvent>
#include <QKeyEvent>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

ProbeWindow::ProbeWindow(const QColor& windowColor) : color(windowColor) {}

void ProbeWindow::paintEvent(QPaintEvent* /*event*/) {
    QPainter(this).fillRect(rect(), color);
}

void ProbeWindow::keyPressEvent(QKeyEvent* event) {
    report(u"key"_s, {{u"text"_s, event->text()}, {u"code"_s, event->key()}});
    if (event->key() == Qt::Key_Escape && onEscape) onEscape();
}

void ProbeWindow::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::ActivationChange) {
        report(u"active"_s, {{u"active"_s, isActiveWindow()}});
    }
}

} // namespace tessaline
