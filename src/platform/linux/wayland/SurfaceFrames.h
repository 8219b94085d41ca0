#pragma once

#include "platform/linux/wayland/FrameClock.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <vector>

struct wl_callback;
struct wl_surface;

namespace tessaline {

/// Tells whenever the compositor has shown a surface and is ready for its next frame. While it
/// shows none, because the surface is hidden or covered, tells once a second, so that time passes
/// all the same. Costs nothing while nobody listens. Main thread only.
class SurfaceFrames final : public QObject {
public:
    /// Receives the time of the frame on the monotonic clock, in nanoseconds.
    using Listener = std::function<void(std::uint64_t time)>;

    SurfaceFrames();
    ~SurfaceFrames() override;

    /// The surface to follow; null while there is none. Borrowed.
    void setSurface(wl_surface* surface);

    /// Tells this listener from the next frame on, until it is removed by the same key.
    void add(const void* key, Listener listener);
    void remove(const void* key);

private:
    struct Listening {
        const void* key;
        Listener listener;
    };

    void request();
    void forget();
    void arrive(std::uint32_t milliseconds);
    void tell(std::uint64_t time);

    wl_surface* followed = nullptr;
    wl_callback* awaited = nullptr;
    FrameClock clock;
    QTimer withoutFrames;
    std::vector<Listening> listeners;
};

} // namespace tessaline
