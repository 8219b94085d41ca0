#include "app/PrompterCutout.h"

#include "prompter/PrompterWindow.h"

#include <QApplication>
#include <QEvent>
#include <QWindow>

namespace tessaline {

namespace {

bool isOrdinary(const QWidget& window) {
    const auto type = window.windowType();
    return (type == Qt::Window || type == Qt::Dialog) && window.isVisible() &&
           !window.isMinimized();
}

} // namespace

PrompterCutout::PrompterCutout(PrompterWindow& prompterWindow) : prompter(prompterWindow) {
    prompter.installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::focusWindowChanged, this, &PrompterCutout::focusMoved);
}

void PrompterCutout::focusMoved(QWindow* window) {
    const bool isPrompter = window && window == prompter.windowHandle();
    if (window && !isPrompter) window->installEventFilter(this);
    // Whoever goes to the prompter in between comes back to the same window.
    if (!isPrompter) isWanted = window != nullptr;
    update();
}

bool PrompterCutout::eventFilter(QObject* watched, QEvent* event) {
    const bool handled = QObject::eventFilter(watched, event);
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::Expose:
    case QEvent::Hide:
        update();
        break;
    default:
        break;
    }
    return handled;
}

void PrompterCutout::update() {
    QRegion covered;
    if (isWanted) {
        for (const QWidget* window : QApplication::topLevelWidgets())
            if (window != &prompter && isOrdinary(*window)) covered += window->frameGeometry();
    }
    prompter.cutOut(covered.translated(-prompter.pos()) & prompter.rect());
}

} // namespace tessaline
