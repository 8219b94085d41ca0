#pragma once

#include <cstdint>
#include <functional>
#include <memory>

namespace tessaline {

/// Calls back once per refresh of a display while it is started. Destroying it stops it. Main
/// thread only, except where a function says otherwise; the callback runs on a thread of the link's
/// own, or on the main thread where the system tells of refreshes there.
class DisplayLink {
public:
    /// Receives the time of the frame in ticks of the host clock. Never goes back between `start`
    /// and `stop`.
    using Callback = std::function<void(std::uint64_t hostTime)>;

    virtual ~DisplayLink() = default;

    /// Begins to call back. False where the system does not; then this may be tried again. Does
    /// nothing when started already.
    virtual bool start() = 0;

    /// Ends the calls. Waits for a callback in progress: once this has returned, none runs. A
    /// callback must therefore never wait for the main thread, nor stop its own link.
    virtual void stop() = 0;

    /// Ticks of the host clock per second. Any thread.
    virtual double clockFrequency() const = 0;
};

/// Makes display links.
class DisplayLinkMaker {
public:
    virtual ~DisplayLinkMaker() = default;

    /// A stopped link that will call `callback`, or null when the system offers none.
    virtual std::unique_ptr<DisplayLink> make(DisplayLink::Callback callback) = 0;

    /// Tells the refresh rate, in hertz, of the screen that the prompter is on now. Links made
    /// before and after follow it; those that learn it from the system ignore this.
    virtual void setRefreshRate(double hertz) = 0;
};

} // namespace tessaline
