#pragma once

#include "platform/DisplayLink.h"
#include "platform/linux/RefreshSchedule.h"

#include <atomic>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>

namespace tessaline {

/// A display link whose thread wakes at the times at which a screen's refreshes are due by the
/// monotonic clock. Refreshes that a stalled thread has slept through are skipped.
///
/// Host time is the monotonic clock in nanoseconds, which stands still during a suspend. While
/// stopped, the thread blocks.
///
/// X Present events are not used: a server without a hardware vblank makes them from a timer of its
/// own at 60 Hz whatever the screen's rate is, less evenly than this thread, and each event costs a
/// trip to the server.
class ClockDisplayLink final : public DisplayLink {
public:
    /// `rate` is the screen's usable rate in hertz; a change takes effect with the next
    /// refresh. Throws std::system_error when no thread can be had.
    ClockDisplayLink(Callback action, std::shared_ptr<const std::atomic<double>> rate);
    ~ClockDisplayLink() override;
    ClockDisplayLink(const ClockDisplayLink&) = delete;
    ClockDisplayLink& operator=(const ClockDisplayLink&) = delete;

    bool start() override;
    void stop() override;
    double clockFrequency() const override { return 1e9; }

private:
    void run();
    void callBack(std::unique_lock<std::mutex>& guard);
    std::uint64_t nextFrame();

    const Callback callback;
    const std::shared_ptr<const std::atomic<double>> refreshRate;

    std::mutex lock;
    std::condition_variable changed;
    // Present while started.
    std::optional<RefreshSchedule> schedule;
    bool callingBack = false;
    bool ending = false;

    // Last, so that the thread finds everything else in place.
    std::thread thread;
};

} // namespace tessaline
