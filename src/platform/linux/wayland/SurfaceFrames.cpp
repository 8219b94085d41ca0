#include "platform/linux/wayland/SurfaceFrames.h"

#include <wayland-client.h>

#include <algorithm>
#include <chrono>
#include <utility>

namespace tessaline {

namespace {

using namespace std::chrono_literals;

std::uint64_t monotonicNow() {
    const auto now = std::chrono::steady_clock::now().time_since_epoch();
    return std::uint64_t(std::chrono::nanoseconds(now).count());
}

} // namespace

SurfaceFrames::SurfaceFrames() {
    withoutFrames.setInterval(1s);
    connect(&withoutFrames, &QTimer::timeout, this,
            [this] { tell(clock.timeWithoutFrame(monotonicNow())); });
}

SurfaceFrames::~SurfaceFrames() {
    forget();
}

void SurfaceFrames::setSurface(wl_surface* surface) {
    if (followed == surface) return;
    forget();
    followed = surface;
    if (!listeners.empty()) request();
}

void SurfaceFrames::add(const void* key, Listener listener) {
    listeners.push_back({key, std::move(listener)});
    if (listeners.size() > 1) return;
    withoutFrames.start();
    request();
}

void SurfaceFrames::remove(const void* key) {
    std::erase_if(listeners, [key](const Listening& each) { return each.key == key; });
    if (!listeners.empty()) return;
    withoutFrames.stop();
    forget();
}

void SurfaceFrames::request() {
    if (!followed || awaited) return;
    static constexpr wl_callback_listener listener{
        .done = [](void* self, wl_callback* /*callback*/, std::uint32_t milliseconds) {
            static_cast<SurfaceFrames*>(self)->arrive(milliseconds);
        }};
    awaited = wl_surface_frame(followed);
    wl_callback_add_listener(awaited, &listener, this);
    // The next frame may have nothing new to show, and be none of Qt's.
    wl_surface_commit(followed);
}

void SurfaceFrames::forget() {
    if (awaited) wl_callback_destroy(std::exchange(awaited, nullptr));
}

void SurfaceFrames::arrive(std::uint32_t milliseconds) {
    forget();
    withoutFrames.start();
    request();
    tell(clock.timeOfFrame(milliseconds, monotonicNow()));
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
