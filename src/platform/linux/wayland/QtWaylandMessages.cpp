#include "platform/linux/wayland/QtWaylandMessages.h"

#include <QCoreApplication>
#include <QLatin1StringView>
#include <QString>
#include <QThread>

#include <unistd.h>

#include <cstdlib>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QtMessageHandler& nextHandler() {
    static QtMessageHandler handler = nullptr;
    return handler;
}

/// Whichever of Qt's threads notices it: what is saved belongs to the main thread, and none of the
/// others may end the program meanwhile.
void exitOnMainThread() {
    static bool isExiting = false;
    const auto exitOnce = [] {
        if (!std::exchange(isExiting, true)) std::exit(EXIT_FAILURE);
    };
    if (QThread::currentThread() == QCoreApplication::instance()->thread()) return exitOnce();
    QMetaObject::invokeMethod(QCoreApplication::instance(), exitOnce, Qt::QueuedConnection);
    for (;;)
        ::pause();
}

void handle(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.contains("client buffer integration"_L1)) return;
    nextHandler()(type, context, message);
    // What Qt says right before it ends the program is all the notice that it gives.
    if (type == QtWarningMsg && message.startsWith("The Wayland connection "_L1))
        exitOnMainThread();
}

} // namespace

void handleQtWaylandMessages() {
    nextHandler() = qInstallMessageHandler(handle);
}

} // namespace tessaline
