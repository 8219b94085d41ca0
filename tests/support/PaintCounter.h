#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

#include <utility>

namespace tessaline {

/// Counts how often a shown widget paints itself.
class PaintCounter final : public QObject {
public:
    explicit PaintCounter(QWidget& watched) { watched.installEventFilter(this); }

    /// The paints since the last call, after everything that is due has been painted.
    int take() {
        QCoreApplication::processEvents();
        return std::exchange(paints, 0);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint) ++paints;
        return QObject::eventFilter(watched, event);
    }

private:
    int paints = 0;
};

} // namespace tessaline
