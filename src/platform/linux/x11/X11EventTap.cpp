#include "platform/linux/x11/X11EventTap.h"

#include "platform/linux/x11/X11Connection.h"
#include "platform/linux/x11/X11TapSession.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <cstdint>
#include <system_error>
#include <utility>

namespace tessaline {

namespace {

constexpr std::chrono::milliseconds noTime{0};
constexpr std::chrono::milliseconds reopenInterval{2000};

} // namespace

std::unique_ptr<EventTap> X11EventTap::create(Handler handler) {
    std::unique_ptr<X11EventTap> tap(new X11EventTap(std::move(handler)));
    auto session = tap->openSession();
    if (!session || tap->stopDescriptor < 0 || !session->takeGrabs()) return nullptr;
    try {
        tap->start(std::move(session));
    } catch (const std::system_error&) {
        return nullptr;
    }
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

std::unique_ptr<X11TapSession> X11EventTap::openSession() {
    auto connection = X11Connection::open();
    if (!connection) return nullptr;
    return std::make_unique<X11TapSession>(std::move(connection), [this](const TapEvent& event) {
        QMetaObject::invokeMethod(
            &mainThread, [this, event] { handler(event); }, Qt::QueuedConnection);
    });
}

void X11EventTap::start(std::unique_ptr<X11TapSession> newSession) {
    session = std::move(newSession);
    worker = std::thread([this] { work(); });
}

/// The guard of the pointer ends a session whose program was stopped: once it goes on, it begins
/// another one.
void X11EventTap::work() {
    session->run(stopDescriptor);
    while (!isToldToStop(noTime)) {
        session = openSession();
        if (session) {
            session->takeGrabs(); // what others hold is tried again later
            session->run(stopDescriptor);
        } else if (isToldToStop(reopenInterval)) {
            return;
        }
    }
}

bool X11EventTap::isToldToStop(std::chrono::milliseconds longestWait) const {
    pollfd source{stopDescriptor, POLLIN, 0};
    return poll(&source, 1, static_cast<int>(longestWait.count())) > 0;
}

} // namespace tessaline
