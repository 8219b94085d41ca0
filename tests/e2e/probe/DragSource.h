#pragma once

#include <QMimeData>
#include <QObject>

#include <functional>
#include <memory>

class QWidget;

namespace tessaline {

/// Lets a window be dragged from with the left button, and reports what becomes of it.
class DragSource : public QObject {
public:
    using Content = std::function<std::unique_ptr<QMimeData>()>;

    /// Borrows the window. `content` makes what is dragged.
    DragSource(QWidget& window, Content content);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void drag();

    QWidget& window;
    const Content makeContent;
};

} // namespace tessaline
