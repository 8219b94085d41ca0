#include "platform/linux/wayland/ConnectionLoss.h"

#include <QString>
#include <QtGlobal>

#include <cstdlib>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QtMessageHandler& nextHandler() {
    static QtMessageHandler handler = nullptr;
    return handler;
}

/// What Qt says right before it ends the program is all the notice that it gives.
void watch(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    nextHandler()(type, context, message);
    if (type == QtWarningMsg && message.startsWith("The Wayland connection "_L1))
        std::exit(EXIT_FAILURE);
}

} // namespace

void exitWhenConnectionBreaks() {
    nextHandler() = qInstallMessageHandler(watch);
}

} // namespace tessaline
