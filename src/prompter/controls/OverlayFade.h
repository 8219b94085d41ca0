#pragma once

#include "platform/TimerMaker.h"

#include <functional>
#include <memory>

namespace tessaline {

/// When an overlay is seen: at once and fully when revealed, a second longer, then fading out. No
/// timer runs while it is hidden or held. Main thread.
class OverlayFade {
public:
    /// Starts hidden. The maker must outlive this object; changed is called after every change of
    /// the opacity.
    OverlayFade(TimerMaker& maker, std::function<void()> changed);

    /// Shows the overlay and starts its second anew.
    void reveal();

    /// Shows the overlay until it is let go, which starts its second.
    void hold();
    void letGo();

    /// Hides the overlay at once, held or not.
    void conceal();

    /// From 0, hidden, to 1.
    double opacity() const;

private:
    void startFading();
    void fade();
    void show(int steps);

    TimerMaker& timers;
    const std::function<void()> onChange;
    std::unique_ptr<RepeatingTimer> timer;
    int stepsLeft = 0;
    bool held = false;
};

} // namespace tessaline
