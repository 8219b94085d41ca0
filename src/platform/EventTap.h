#pragma once

#include "platform/TapEvent.h"

#include <functional>
#include <memory>

namespace tessaline {

/// Sees scroll, right-button and other-button events of the whole session before other applications
/// do, for as long as it lives.
class EventTap {
public:
    enum class Verdict { passOn, swallow };
    using Handler = std::function<Verdict(const TapEvent&)>;

    virtual ~EventTap() = default;

    /// Switches the tap on again after the system switched it off.
    virtual void enable() = 0;

    /// Whether the tap sees events at this moment. Most systems never switch one off.
    virtual bool isOn() const { return true; }
};

/// Makes event taps.
class EventTapMaker {
public:
    virtual ~EventTapMaker() = default;

    /// A tap that is on, or null where the system does not allow one now. The handler must return
    /// quickly: input waits for it.
    virtual std::unique_ptr<EventTap> create(EventTap::Handler handler) = 0;

    /// Whether the system would allow a tap now. Unlike `AccessibilityTrust`, which may still tell
    /// of a permission that was taken away, this tries. May be asked from within a tap's handler.
    virtual bool wouldAllow() { return true; }
};

} // namespace tessaline
