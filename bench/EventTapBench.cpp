#include "Samples.h"
#include "Verdicts.h"

#include "analytics/UsageRecorder.h"
#include "app/shortcuts/Shortcuts.h"
#include "platform/AccessibilityTrust.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/linux/x11/X11Connection.h"

#include <QGuiApplication>

#include <dlfcn.h>
#include <xcb/xtest.h>

#include <atomic>
#include <chrono>
#include <cstdio>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {
namespace {

using Clock = std::chrono::steady_clock;
using Microseconds = std::chrono::duration<double, std::micro>;

constexpr int samples = 1000;
constexpr std::uint8_t wheelUp = 4;
constexpr std::uint8_t leftControlKey = 37;
// Everybody is asleep again, as in real life. An overloaded server that sees a button go up and
// down again before the tap could answer makes one press of the two.
constexpr auto settle = std::chrono::milliseconds(5);

std::atomic<Clock::time_point> lastRead{Clock::time_point{}};

/// Notes when an action is queued, and drops it.
class NotingQueue final : public MainQueue {
public:
    void post(std::function<void()> /*task*/) override { queued = Clock::now(); }

    std::optional<Clock::time_point> queued;
};

class SilentRecorder final : public UsageRecorder {
public:
    void record(const AnalyticsEvent& /*event*/) override {}
    void trackAppLaunch() override {}
    void trackAppTerminate() override {}
    void trackEnvironmentSnapshot(const AppSettings& /*settings*/) override {}
};

/// The user's hands.
class Hands {
public:
    explicit Hands(const X11Connection& ownConnection) : connection(ownConnection) {}

    void press(std::uint8_t type, std::uint8_t detail) const {
        xcb_test_fake_input(connection.xcb(), type, detail, XCB_CURRENT_TIME, XCB_NONE, 0, 0, 0);
        xcb_flush(connection.xcb());
    }

private:
    const X11Connection& connection;
};

struct Turn {
    double whole = 0.0;  ///< from the device on, microseconds
    double inside = 0.0; ///< from the reading of the event on
};

std::optional<Turn> measureOnce(const Hands& hands, NotingQueue& queue) {
    queue.queued.reset();
    const auto start = Clock::now();
    hands.press(XCB_BUTTON_PRESS, wheelUp);
    const auto deadline = start + std::chrono::seconds(5);
    while (!queue.queued && Clock::now() < deadline)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    hands.press(XCB_BUTTON_RELEASE, wheelUp);
    if (!queue.queued) return std::nullopt;
    return Turn{.whole = Microseconds(*queue.queued - start).count(),
                .inside = Microseconds(*queue.queued - lastRead.load()).count()};
}

} // namespace
} // namespace tessaline

/// Stands before the library's function, to note when the tap reads an event. The bench's own
/// connection reads none.
extern "C" xcb_generic_event_t* xcb_poll_for_event(xcb_connection_t* connection) {
    using Poll = xcb_generic_event_t* (*)(xcb_connection_t*);
    static const auto poll = reinterpret_cast<Poll>(dlsym(RTLD_NEXT, "xcb_poll_for_event"));
    xcb_generic_event_t* event = poll(connection);
    // XInput's button press.
    const bool isPress = event && (event->response_type & 0x7f) == XCB_GE_GENERIC &&
                         reinterpret_cast<xcb_ge_generic_event_t*>(event)->event_type == 4;
    if (isPress) tessaline::lastRead = tessaline::Clock::now();
    return event;
}

/// How long it takes from the moment that a wheel is turned, with Control held, until the scrolling
/// waits in the main queue: through the X server, the tap's thread and the main loop.
int main(int argc, char** argv) {
    using namespace tessaline;
    const QGuiApplication application(argc, argv);
    const auto connection = X11Connection::open();
    const auto platform = makePlatform();
    if (!connection || !platform->trust->isTrusted()) {
        std::fputs("there is no X server that could be measured\n", stderr);
        return 2;
    }
    // Others of the platform's adapters borrow the real one.
    const auto realQueue = std::exchange(platform->mainQueue, std::make_unique<NotingQueue>());
    auto& queue = static_cast<NotingQueue&>(*platform->mainQueue);
    SilentRecorder recorder;
    Shortcuts shortcuts(*platform, recorder,
                        {.performScroll = [](double) {}, .toggleScroll = [] {}, .paste = [] {}});
    shortcuts.setupShortcuts();

    const Hands hands(*connection);
    hands.press(XCB_KEY_PRESS, leftControlKey);
    std::vector<double> whole;
    std::vector<double> inside;
    for (int i = 0; i < samples; ++i) {
        std::this_thread::sleep_for(settle);
        const auto turn = measureOnce(hands, queue);
        if (!turn) break;
        whole.push_back(turn->whole);
        inside.push_back(turn->inside);
    }
    hands.press(XCB_KEY_RELEASE, leftControlKey);
    if (whole.size() < samples) {
        std::fprintf(stderr, "turn %zu of the wheel never arrived\n", whole.size());
        return 2;
    }
    Verdicts verdicts;
    const QString what = u"Control and wheel in another application, %1: median"_s;
    verdicts.judge(what.arg(u"from event read to queued"), median(inside), 50, "µs");
    verdicts.judge(what.arg(u"from device to queued"), median(whole), 1000, "µs");
    return verdicts.exitStatus();
}
