#include "render/engines/DisplayLinkScroller.h"

#include "platform/MainQueue.h"
#include "render/engines/DisplayLinkScrollerDelegate.h"

#include <QtGlobal>

#include <cstdio>
#include <utility>

namespace tessaline {

namespace {

constexpr double firstFrameSeconds = 1.0 / 60.0;
constexpr double smallestScroll = 0.1;

} // namespace

DisplayLinkScroller::DisplayLinkScroller(DisplayLinkMaker& links, MainQueue& queue)
    : mainQueue(queue)
    , displayLink(links.make([this](std::uint64_t hostTime) { tick(hostTime); })) {
    if (!displayLink) reportFallback();
}

DisplayLinkScroller::~DisplayLinkScroller() {
    stop();
}

void DisplayLinkScroller::setDelegate(std::weak_ptr<DisplayLinkScrollerDelegate> receiver) {
    delegate = std::move(receiver);
}

void DisplayLinkScroller::start() {
    if (!displayLink || isRunning) return;
    isRunning = displayLink->start();
    if (isRunning) return;
    displayLink.reset();
    reportFallback();
}

void DisplayLinkScroller::stop() {
    if (!displayLink || !isRunning) return;
    displayLink->stop();
    isRunning = false;
    lastTimestamp.reset();
}

void DisplayLinkScroller::updatePixelsPerSecond(double value) {
    const std::scoped_lock guard(lock);
    pixelsPerSecond = value;
}

void DisplayLinkScroller::tick(std::uint64_t hostTime) {
    double pps = 0.0;
    {
        const std::scoped_lock guard(lock);
        pps = pixelsPerSecond;
    }
    // The time of the frame is not noted at speed 0: the first frame at a positive speed makes up
    // for the whole pause.
    if (!(pps > 0.0)) return;

    const double dt = secondsSinceLastFrame(hostTime);
    lastTimestamp = hostTime;
    scrollRemainder += pps * dt;
    if (scrollRemainder >= smallestScroll) postScroll(-std::exchange(scrollRemainder, 0.0));
}

double DisplayLinkScroller::secondsSinceLastFrame(std::uint64_t hostTime) const {
    if (!lastTimestamp) return firstFrameSeconds;
    if (hostTime < *lastTimestamp) {
        qFatal("The display link's host time went back from %llu to %llu",
               static_cast<unsigned long long>(*lastTimestamp),
               static_cast<unsigned long long>(hostTime));
    }
    return static_cast<double>(hostTime - *lastTimestamp) / displayLink->clockFrequency();
}

void DisplayLinkScroller::postScroll(double deltaY) {
    mainQueue.post(lifetime.guard([this, deltaY] { deliver(deltaY); }));
}

void DisplayLinkScroller::reportFallback() {
    std::puts("Failed to create CVDisplayLink, falling back to Timer");
    std::fflush(stdout);
}

void DisplayLinkScroller::deliver(double deltaY) {
    if (const auto receiver = delegate.lock()) receiver->scrollerDidProduceScroll(*this, deltaY);
}

} // namespace tessaline
