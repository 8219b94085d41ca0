#include "platform/SystemAdapters.h"
#include "platform/linux/x11/X11Pasteboard.h"
#include "platform/qt/QtPasteboard.h"

#include <QGuiApplication>

namespace tessaline {

std::unique_ptr<Pasteboard> makePasteboard(MainQueue& queue, TaskRunner& tasks) {
    if (!qGuiApp->nativeInterface<QNativeInterface::QX11Application>())
        return std::make_unique<QtPasteboard>();
    return std::make_unique<X11Pasteboard>(queue, tasks);
}

} // namespace tessaline
