#include "DragSource.h"

#include "ProbeReport.h"

#include <QDrag>
#include <QEvent>
#include <QWidget>

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

namespace {

QString nameOf(Qt::DropAction action) {
    switch (action) {
    case Qt::CopyAction:
        return u"copy"_s;
    case Qt::IgnoreAction:
        return u"none"_s;
    default:
        return u"other"_s;
    }
}

} // namespace

DragSource::DragSource(QWidget& dragged, Content content)
    : window(dragged), makeContent(std::move(content)) {
    window.installEventFilter(this);
}

bool DragSource::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress) {
        drag();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

void DragSource::drag() {
    auto* drag = new QDrag(&window);
    drag->setMimeData(makeContent().release());
    connect(drag, &QDrag::actionChanged, drag, [](Qt::DropAction action) {
        report(u"action"_s, {{u"action"_s, nameOf(action)}});
    });
    report(u"drag"_s, {});
    const auto action = drag->exec(Qt::CopyAction | Qt::MoveAction, Qt::MoveAction);
    report(u"dropped"_s, {{u"action"_s, nameOf(action)}});
}

} // namespace tessaline
