#include "platform/linux/wayland/QtWaylandMessages.h"

#include <QLatin1StringView>
#include <QString>

#include <cstdlib>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QtMessageHandler& nextHandler() {
    static QtMessageHandler handler = nullptr;
    return handler;
}

void handle(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.contains("client buffer integration"_L1)) return;
    nextHandler()(type, context, message);
    // What Qt says right before it ends the program is all the notice that it gives.
    if (type == QtWarningMsg && message.startsWith("The Wayland connection "_L1))
        std::exit(EXIT_FAILURE);
}

} // namespace

void handleQtWaylandMessages() {
    nextHandler() = qInstallMessageHandler(handle);
}

} // namespace tessaline
