#include "app/shortcuts/EventTapLife.h"

#include "platform/MainQueue.h"

#include <utility>

namespace tessaline {

EventTapLife::EventTapLife(EventTapMaker& tapMaker, MainQueue& mainQueue,
                           EventTap::Handler tapHandler)
    : maker(tapMaker), queue(mainQueue), handler(std::move(tapHandler)) {}

EventTapLife::~EventTapLife() = default;

EventTapLife::Attempt EventTapLife::makeIfNeeded(TimePoint now) {
    if (tap || !mayRevive(now)) return Attempt::unneeded;
    tap = maker.create(handler);
    if (!tap) return Attempt::refused;
    if (std::exchange(hadOne, true)) revivals.push_back(now);
    return Attempt::made;
}

void EventTapLife::dropIfOff() {
    if (tap && !tap->isOn()) tap.reset();
}

void EventTapLife::switchedOff(TimePoint now) {
    if (!tap) return;
    if (!mayRevive(now) || !maker.wouldAllow()) {
        queue.post(lifetime.guard([this] { dropIfOff(); }));
        return;
    }
    revivals.push_back(now);
    tap->enable();
}

bool EventTapLife::mayRevive(TimePoint now) {
    std::erase_if(revivals, [now](TimePoint revival) { return now - revival >= window; });
    return revivals.size() < mostRevivals;
}

} // namespace tessaline
