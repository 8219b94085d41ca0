#include "platform/linux/wayland/SurfaceFrames.h"

#include "platform/linux/RefreshSchedule.h"

#include <QEvent>
#include <QWidget>

#include <wayland-client.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tessaline {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds longestWait = 1s;

std::uint64_t monotonicNow() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::uint64_t(std::chrono::nanoseconds(now).count());
}

} // namespace

SurfaceFrames::SurfaceFrames() {
    setRefreshRate(0.0);
    withoutFrame.setSingleShot(true);
    withoutFrame.setTimerType(Qt::PreciseTimer);
    connect(&withoutFrame, &QTimer::timeout, this, &SurfaceFrames::tellWithoutFrame);
}

SurfaceFrames::~SurfaceFrames() {
    forget();
}

void SurfaceFrames::setSurface(wl_surface* surface, QWidget* window) {
    if (followed == surface) return;
    forget();
    if (painted) painted->removeEventFilter(this);
    followed = surface;
    painted = window;
    if (painted) painted->installEventFilter(this);
    if (listeners.empty()) return;
    request();
    waitForFrame();
}

void SurfaceFrames::setRefreshRate(double hertz) {
    const auto period = std::chrono::duration<double>(1.0 / usableRefreshRate(hertz));
    refreshPeriod = std::chrono::ceil<std::chrono::milliseconds>(period);
}

void SurfaceFrames::add(const void* key, Listener listener) {
    listeners.push_back({key, std::move(listener)});
    if (listeners.size() > 1) return;
    request();
    waitForFrame();
}

void SurfaceFrames::remove(const void* key) {
    std::erase_if(listeners, [key](const Listening& each) { return each.key == key; });
    if (!listeners.empty()) return;
    withoutFrame.stop();
    forget();
}

/// The window is about to be painted, and that to be committed.
bool SurfaceFrames::eventFilter(QObject* /*watched*/, QEvent* event) {
    if (event->type() == QEvent::UpdateRequest && awaited) {
        isComing = true;
        waitForFrame();
    }
    return false;
}

/// It is a part of the next commit, which is Qt's.
void SurfaceFrames::request() {
    if (!followed || awaited) return;
    static constexpr wl_callback_listener listener{
        .done = [](void* self, wl_callback* /*callback*/, std::uint32_t milliseconds) {
            static_cast<SurfaceFrames*>(self)->arrive(milliseconds);
        }};
    awaited = wl_surface_frame(followed);
    wl_callback_add_listener(awaited, &listener, this);
    isComing = false;
}

void SurfaceFrames::forget() {
    if (awaited) wl_callback_destroy(std::exchange(awaited, nullptr));
    isComing = false;
}

void SurfaceFrames::arrive(std::uint32_t milliseconds) {
    forget();
    request();
    waitForFrame();
    tell(clock.timeOfFrame(milliseconds, monotonicNow()));
}

void SurfaceFrames::tellWithoutFrame() {
    waitForFrame();
    tell(clock.timeWithoutFrame(monotonicNow()));
}

void SurfaceFrames::waitForFrame() {
    const bool mayBeShown = awaited && !isComing;
    withoutFrame.start(mayBeShown ? refreshPeriod : longestWait);
}

void SurfaceFrames::tell(std::uint64_t time) {
    // A listener may end itself or another one.
    const auto now = listeners;
    for (const Listening& each : now) {
        const bool stillListens =
            std::any_of(listeners.begin(), listeners.end(),
                        [&each](const Listening& other) { return other.key == each.key; });
        if (stillListens) each.listener(time);
    }
}

} // namespace tessaline
