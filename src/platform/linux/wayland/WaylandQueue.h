#pragma once

#include <wayland-client.h>

#include <memory>

namespace tessaline {

/// A queue of events apart from Qt's: whoever waits for an answer waits for that one alone, and
/// nothing of Qt's happens meanwhile. Main thread only.
class WaylandQueue {
public:
    /// Borrows the display.
    explicit WaylandQueue(wl_display* display);
    ~WaylandQueue();
    WaylandQueue(const WaylandQueue&) = delete;
    WaylandQueue& operator=(const WaylandQueue&) = delete;

    /// Stands for an object: what is made through it has its events on this queue.
    template <typename Object>
    class StandIn {
    public:
        StandIn(Object* object, wl_event_queue* queue)
            : wrapper(static_cast<Object*>(wl_proxy_create_wrapper(object))) {
            wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(wrapper), queue);
        }
        ~StandIn() { wl_proxy_wrapper_destroy(wrapper); }
        StandIn(const StandIn&) = delete;
        StandIn& operator=(const StandIn&) = delete;

        Object* get() const { return wrapper; }

    private:
        Object* wrapper;
    };

    template <typename Object>
    StandIn<Object> standIn(Object* object) const {
        return {object, queue};
    }

    /// Sends what is to be sent and takes what has come in answer. False once the compositor is
    /// gone.
    bool exchange() const;

    /// From here on, Qt's turns are the object's as well.
    template <typename Object>
    static void handToQt(Object* object) {
        wl_proxy_set_queue(reinterpret_cast<wl_proxy*>(object), nullptr);
    }

private:
    wl_display* display;
    wl_event_queue* queue;
};

} // namespace tessaline
