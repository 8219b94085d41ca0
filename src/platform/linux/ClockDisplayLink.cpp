#include "platform/linux/ClockDisplayLink.h"

#include <pthread.h>

#include <chrono>
#include <utility>

namespace tessaline {

namespace {

using Clock = std::chrono::steady_clock;

std::uint64_t monotonicNow() {
    const std::chrono::nanoseconds now = Clock::now().time_since_epoch();
    return static_cast<std::uint64_t>(now.count());
}

Clock::time_point timePoint(std::uint64_t hostTime) {
    return Clock::time_point(std::chrono::nanoseconds(hostTime));
}

} // namespace

ClockDisplayLink::ClockDisplayLink(Callback action, std::shared_ptr<const std::atomic<double>> rate)
    : callback(std::move(action)), refreshRate(std::move(rate)), thread([this] { run(); }) {}

ClockDisplayLink::~ClockDisplayLink() {
    {
        const std::scoped_lock guard(lock);
        ending = true;
    }
    changed.notify_all();
    thread.join();
}

bool ClockDisplayLink::start() {
    {
        const std::scoped_lock guard(lock);
        if (!schedule) schedule.emplace(monotonicNow(), *refreshRate);
    }
    changed.notify_all();
    return true;
}

void ClockDisplayLink::stop() {
    std::unique_lock guard(lock);
    schedule.reset();
    changed.notify_all();
    changed.wait(guard, [this] { return !callingBack; });
}

void ClockDisplayLink::run() {
    pthread_setname_np(pthread_self(), "display-link");
    std::unique_lock guard(lock);
    while (!ending) {
        if (!schedule) {
            changed.wait(guard);
        } else if (monotonicNow() < schedule->next()) {
            changed.wait_until(guard, timePoint(schedule->next()));
        } else {
            callBack(guard);
        }
    }
}

void ClockDisplayLink::callBack(std::unique_lock<std::mutex>& guard) {
    const std::uint64_t hostTime = nextFrame();
    callingBack = true;
    guard.unlock();
    callback(hostTime);
    guard.lock();
    callingBack = false;
    changed.notify_all();
}

std::uint64_t ClockDisplayLink::nextFrame() {
    const std::uint64_t hostTime = schedule->advance(monotonicNow());
    if (const double rate = *refreshRate; rate != schedule->rate())
        schedule.emplace(hostTime, rate);
    return hostTime;
}

} // namespace tessaline
