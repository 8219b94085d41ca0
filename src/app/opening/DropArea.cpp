#include "app/opening/DropArea.h"

#include "sources/files/DroppedContent.h"

#include <QDropEvent>
#include <QWidget>

#include <utility>

namespace tessaline {

DropArea::DropArea(QWidget& window, std::function<void(const DroppedContent& content)> dropped)
    : onDrop(std::move(dropped)) {
    window.setAcceptDrops(true);
    window.installEventFilter(this);
}

bool DropArea::eventFilter(QObject* watched, QEvent* event) {
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        accept(static_cast<QDropEvent&>(*event));
        return true;
    case QEvent::Drop: {
        auto& drop = static_cast<QDropEvent&>(*event);
        if (accept(drop)) onDrop(DroppedContent::of(*drop.mimeData()));
        return true;
    }
    default:
        return QObject::eventFilter(watched, event);
    }
}

bool DropArea::accept(QDropEvent& event) const {
    const bool isWanted =
        event.possibleActions().testFlag(Qt::CopyAction) && DroppedContent::isIn(*event.mimeData());
    event.setDropAction(isWanted ? Qt::CopyAction : Qt::IgnoreAction);
    event.setAccepted(isWanted);
    return isWanted;
}

} // namespace tessaline
