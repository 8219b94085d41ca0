#include "platform/linux/wayland/QtWaylandMessages.h"

#include <QLatin1StringView>
#include <QString>

#include <atomic>
#include <cstdlib>
#include <thread>

#include <unistd.h>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QtMessageHandler& nextHandler() {
    static QtMessageHandler handler = nullptr;
    return handler;
}

/// Several of Qt's threads notice it, and one would end the program while another one's exit still
/// saves.
void exitOnce() {
    static std::atomic<std::thread::id> exiting;
    const std::thread::id here = std::this_thread::get_id();
    std::thread::id nobody;
    if (exiting.compare_exchange_strong(nobody, here)) std::exit(EXIT_FAILURE);
    while (exiting != here)
        ::pause();
}

void handle(QtMsgType type, const QMessageLogContext& context, const QString& message) {
    if (message.contains("client buffer integration"_L1)) return;
    nextHandler()(type, context, message);
    // What Qt says right before it ends the program is all the notice that it gives.
    if (type == QtWarningMsg && message.startsWith("The Wayland connection "_L1)) exitOnce();
}

} // namespace

void handleQtWaylandMessages() {
    nextHandler() = qInstallMessageHandler(handle);
}

} // namespace tessaline
