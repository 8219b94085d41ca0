#include "render/engines/TimerScroller.h"

#include "platform/MainQueue.h"
#include "platform/TimerMaker.h"
#include "render/engines/DisplayLinkScroller.h"
#include "render/engines/DisplayLinkScrollerDelegate.h"

#include <utility>

namespace tessaline {

namespace {

constexpr double framesPerSecond = 60.0;
constexpr TimerMaker::Interval frameInterval{1.0 / framesPerSecond};
constexpr double leastScroll = 0.1;

} // namespace

TimerScroller::TimerScroller(TimerMaker& timers, MainQueue& queue, DisplayLinkMaker& links)
    : timerMaker(timers), mainQueue(queue), linkMaker(links) {}

TimerScroller::~TimerScroller() = default;

void TimerScroller::setDelegate(std::weak_ptr<DisplayLinkScrollerDelegate> receiver) {
    delegate = std::move(receiver);
}

void TimerScroller::start() {
    if (timer) return;
    timer = timerMaker.every(frameInterval, lifetime.guard([this] { tick(); }));
}

void TimerScroller::stop() {
    timer.reset();
}

void TimerScroller::updatePixelsPerSecond(double value) {
    pixelsPerSecond = value;
}

void TimerScroller::tick() {
    if (!(pixelsPerSecond > 0.0)) return; // nor when it is not a number
    // The frame time is fixed: how late the timer fires is not measured.
    scrollRemainder += pixelsPerSecond / framesPerSecond;
    if (scrollRemainder < leastScroll) return;

    mainQueue.post(
        lifetime.guard([this, deltaY = -std::exchange(scrollRemainder, 0.0)] { deliver(deltaY); }));
}

void TimerScroller::deliver(double deltaY) {
    const auto receiver = delegate.lock();
    if (!receiver) return;
    DisplayLinkScroller scroller(linkMaker, mainQueue);
    receiver->scrollerDidProduceScroll(scroller, deltaY);
}

} // namespace tessaline
