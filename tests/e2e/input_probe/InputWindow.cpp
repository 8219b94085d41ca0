#include "InputWindow.h"

#include "ProbeReport.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QMouseEvent>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

InputWindow::InputWindow(bool hasTextField) {
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    if (!hasTextField) return;
    auto* field = new QLineEdit(this);
    QObject::connect(field, &QLineEdit::textChanged, [](const QString& text) {
        report(u"field"_s, {{u"text"_s, text}});
    });
    field->setFocus();
}

void InputWindow::wheelEvent(QWheelEvent* event) {
    report(u"wheel"_s, {{u"y"_s, event->angleDelta().y()},
                        {u"x"_s, event->angleDelta().x()},
                        {u"control"_s, event->modifiers().testFlag(Qt::ControlModifier)}});
}

void InputWindow::mousePressEvent(QMouseEvent* event) {
    report(u"press"_s, {{u"button"_s, static_cast<int>(event->button())}});
}

void InputWindow::mouseReleaseEvent(QMouseEvent* event) {
    report(u"release"_s, {{u"button"_s, static_cast<int>(event->button())}});
}

void InputWindow::mouseMoveEvent(QMouseEvent* event) {
    report(u"move"_s,
           {{u"x"_s, event->position().x()}, {u"buttons"_s, static_cast<int>(event->buttons())}});
}

void InputWindow::keyPressEvent(QKeyEvent* event) {
    report(u"key"_s, {{u"code"_s, event->key()}});
}

} // namespace tessaline
