#pragma once

#include "platform/linux/wayland/FrameClock.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <cstdint>
#include <functional>
#include <vector>

class QWidget;
struct wl_callback;
struct wl_surface;

namespace tessaline {

/// Tells whenever the compositor has shown what was painted of a surface and is ready for its next
/// frame. While nothing is painted, tells about once per refresh of the screen; while the
/// compositor shows nothing, because the surface is hidden or covered, once a second, so that time
/// passes all the same. Costs nothing while nobody listens. Main thread only.
class SurfaceFrames final : public QObject {
public:
    /// Receives the time of the frame on the monotonic clock, in nanoseconds.
    using Listener = std::function<void(std::uint64_t time)>;

    SurfaceFrames();
    ~SurfaceFrames() override;

    /// The surface to follow, and the window that is painted on it; null while there is none. Both
    /// are borrowed.
    void setSurface(wl_surface* surface, QWidget* window);

    /// Tells the refresh rate of the screen, in hertz.
    void setRefreshRate(double hertz);

    /// Tells this listener from the next frame on, until it is removed by the same key.
    void add(const void* key, Listener listener);
    void remove(const void* key);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Listening {
        const void* key;
        Listener listener;
    };

    void request();
    void forget();
    void arrive(std::uint32_t milliseconds);
    void tellWithoutFrame();
    void waitForFrame();
    void tell(std::uint64_t time);

    wl_surface* followed = nullptr;
    QPointer<QWidget> painted;
    wl_callback* awaited = nullptr;
    bool isComing = false; ///< something was painted since the callback was asked for
    std::chrono::milliseconds refreshPeriod;
    FrameClock clock;
    QTimer withoutFrame;
    std::vector<Listening> listeners;
};

} // namespace tessaline
