#include "platform/linux/X11EventTap.h"

#include "platform/linux/X11Connection.h"
#include "platform/linux/X11TapSession.h"

#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>
#include <utility>

namespace tessaline {

std::unique_ptr<EventTap> X11EventTap::create(Handler handler) {
    auto connection = X11Connection::open();
    if (!connection) return nullptr;
    std::unique_ptr<X11EventTap> tap(new X11EventTap(std::move(handler)));
    auto session = std::make_unique<X11TapSession>(
        std::move(connection), [tap = tap.get()](const TapEvent& event) {
            QMetaObject::invokeMethod(
                &tap->mainThread, [tap, event] { tap->handler(event); }, Qt::QueuedConnection);
        });
    if (tap->stopDescriptor < 0 || !session->takeGrabs()) return nullptr;
    tap->start(std::move(session));
    return tap;
}

X11EventTap::X11EventTap(Handler eventHandler)
    : handler(std::move(eventHandler)), stopDescriptor(eventfd(0, EFD_CLOEXEC)) {}

X11EventTap::~X11EventTap() {
    if (worker.joinable()) {
        const std::uint64_t one = 1;
        if (write(stopDescriptor, &one, sizeof one) == sizeof one) worker.join();
    }
    if (stopDescriptor >= 0) close(stopDescriptor);
}

void X11EventTap::enable() {}

void X11EventTap::start(std::unique_ptr<X11TapSession> newSession) {
    session = std::move(newSession);
    worker = std::thread([this] { session->run(stopDescriptor); });
}

} // namespace tessaline
