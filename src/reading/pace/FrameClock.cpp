#include "reading/pace/FrameClock.h"

#include "platform/MainQueue.h"

#include <chrono>
#include <utility>

namespace tessaline {

namespace {

constexpr double firstFrameSeconds = 1.0 / 60.0;
constexpr TimerMaker::Interval frameInterval{firstFrameSeconds};

} // namespace

FrameClock::FrameClock(DisplayLinkMaker& links, TimerMaker& timerMaker, MainQueue& mainQueue,
                       Clocks givenClocks, OnFrame handler)
    : timers(timerMaker)
    , queue(mainQueue)
    , clocks(std::move(givenClocks))
    , onFrame(std::move(handler))
    , link(links.make([this](std::uint64_t hostTime) { tick(hostTime); })) {}

FrameClock::~FrameClock() {
    stop();
}

void FrameClock::start() {
    if (std::exchange(isRunning, true)) return;
    if (link && link->start()) return;
    link.reset();
    timer = timers.every(frameInterval, lifetime.guard([this] { timerFired(); }));
}

void FrameClock::stop() {
    if (!std::exchange(isRunning, false)) return;
    if (link) link->stop();
    timer.reset();
    lastHostTime.reset();
    lastFiring.reset();
}

void FrameClock::tick(std::uint64_t hostTime) {
    latestHostTime = hostTime;
    if (!isPosted.exchange(true)) queue.post(lifetime.guard([this] { deliver(); }));
}

void FrameClock::deliver() {
    isPosted = false;
    if (!isRunning || !link) return;
    const std::uint64_t now = latestHostTime;
    const auto before = std::exchange(lastHostTime, now);
    onFrame(before ? double(now - *before) / link->clockFrequency() : firstFrameSeconds);
}

void FrameClock::timerFired() {
    const auto now = clocks.steady();
    const auto before = std::exchange(lastFiring, now);
    onFrame(before ? std::chrono::duration<double>(now - *before).count() : firstFrameSeconds);
}

} // namespace tessaline
