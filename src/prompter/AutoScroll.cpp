#include "prompter/AutoScroll.h"

#include "render/engines/DisplayLinkScrollerDelegate.h"
#include "settings/AppSettings.h"

#include <utility>

namespace tessaline {

namespace {

/// The speed at which a rate's factor is reached.
constexpr double speedOfFactor = 2.5;

class Receiver final : public DisplayLinkScrollerDelegate {
public:
    Receiver(const AppSettings& appSettings, AutoScroll::PerformScroll scroll)
        : settings(appSettings), performScroll(std::move(scroll)) {}

    void scrollerDidProduceScroll(DisplayLinkScroller&, double deltaY) override {
        if (settings.autoScrollEnabled) performScroll(deltaY);
    }

private:
    const AppSettings& settings;
    AutoScroll::PerformScroll performScroll;
};

} // namespace

AutoScroll::AutoScroll(const AppSettings& appSettings, DisplayLinkMaker& links, TimerMaker& timers,
                       MainQueue& queue, PerformScroll performScroll)
    : settings(appSettings)
    , receiver(std::make_shared<Receiver>(appSettings, std::move(performScroll)))
    , displayLinkScroller(links, queue) {
    if (displayLinkScroller.isAvailable()) {
        displayLinkScroller.setDelegate(receiver);
    } else {
        timerScroller.emplace(timers, queue, links);
        timerScroller->setDelegate(receiver);
    }
    updateSpeed();
    if (settings.autoScrollEnabled) start();
}

AutoScroll::~AutoScroll() = default;

void AutoScroll::updateSpeed() {
    const double pixelsPerSecond =
        scrollFactor(settings.scrollRate) * (settings.scrollSpeed / speedOfFactor);
    displayLinkScroller.updatePixelsPerSecond(pixelsPerSecond);
    if (timerScroller) timerScroller->updatePixelsPerSecond(pixelsPerSecond);
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
