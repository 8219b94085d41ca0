#include "reading/AutoScroll.h"

#include "reading/Pace.h"
#include "render/engines/DisplayLinkScrollerDelegate.h"

#include <utility>

namespace tessaline {

AutoScroll::AutoScroll(std::weak_ptr<DisplayLinkScrollerDelegate> receiver,
                       DisplayLinkMaker& linkMaker, TimerMaker& timerMaker, MainQueue& mainQueue)
    : reader(std::move(receiver))
    , links(linkMaker)
    , timers(timerMaker)
    , queue(mainQueue)
    , displayLinkScroller(links, queue) {
    displayLinkScroller.setDelegate(reader);
    if (!displayLinkScroller.isAvailable()) fallBackToTimer();
}

void AutoScroll::fallBackToTimer() {
    timerScroller.emplace(timers, queue, links);
    timerScroller->setDelegate(reader);
    if (pointsPerSecond) timerScroller->updatePixelsPerSecond(*pointsPerSecond);
}

void AutoScroll::setPace(const Pace& pace) {
    pointsPerSecond = pace.pointsPerSecond();
    displayLinkScroller.updatePixelsPerSecond(*pointsPerSecond);
    if (timerScroller) timerScroller->updatePixelsPerSecond(*pointsPerSecond);
}

void AutoScroll::start() {
    displayLinkScroller.start();
    if (!displayLinkScroller.isAvailable() && !timerScroller) fallBackToTimer();
    if (timerScroller) timerScroller->start();
}

void AutoScroll::stop() {
    displayLinkScroller.stop();
    if (timerScroller) timerScroller->stop();
}

bool AutoScroll::running() const {
    return displayLinkScroller.running() || (timerScroller && timerScroller->running());
}

} // namespace tessaline
