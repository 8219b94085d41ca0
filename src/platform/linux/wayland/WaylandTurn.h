#pragma once

#include "platform/Lifetime.h"

#include <functional>

struct wl_callback;
struct wl_display;

namespace tessaline {

/// Calls back once, when the compositor has done all that was asked of it before, and Qt has handed
/// out the input that came before that. Never, once this is gone. Main thread only.
class WaylandTurn {
public:
    WaylandTurn(wl_display* display, std::function<void()> done);
    ~WaylandTurn();
    WaylandTurn(const WaylandTurn&) = delete;
    WaylandTurn& operator=(const WaylandTurn&) = delete;

private:
    void finish();

    wl_callback* callback;
    std::function<void()> onDone;
    Lifetime lifetime;
};

} // namespace tessaline
