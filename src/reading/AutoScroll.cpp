#include "reading/AutoScroll.h"

#include "reading/Pace.h"
#include "render/engines/DisplayLinkScrollerDelegate.h"

namespace tessaline {

AutoScroll::AutoScroll(const std::weak_ptr<DisplayLinkScrollerDelegate>& reader,
                       DisplayLinkMaker& links, TimerMaker& timers, MainQueue& queue)
    : displayLinkScroller(links, queue) {
    if (displayLinkScroller.isAvailable()) {
        displayLinkScroller.setDelegate(reader);
    } else {
        timerScroller.emplace(timers, queue, links);
        timerScroller->setDelegate(reader);
    }
}

void AutoScroll::setPace(const Pace& pace) {
    displayLinkScroller.updatePixelsPerSecond(pace.pointsPerSecond());
    if (timerScroller) timerScroller->updatePixelsPerSecond(pace.pointsPerSecond());
}

void AutoScroll::start() {
    displayLinkScroller.start();
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
