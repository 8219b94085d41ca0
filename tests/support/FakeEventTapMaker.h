#pragma once

#include "platform/EventTap.h"

namespace tessaline {

/// Makes taps whose events the test sends.
class FakeEventTapMaker final : public EventTapMaker {
public:
    std::unique_ptr<EventTap> create(EventTap::Handler newHandler) override {
        ++attempts;
        if (!allowed) return nullptr;
        handler = std::move(newHandler);
        return std::make_unique<Tap>(*this);
    }

    /// Whether the event was passed on or swallowed.
    EventTap::Verdict send(const TapEvent& event) { return handler(event); }

    bool allowed = true;
    int attempts = 0;
    int enables = 0;
    int liveTaps = 0;
    EventTap::Handler handler;

private:
    class Tap final : public EventTap {
    public:
        explicit Tap(FakeEventTapMaker& owner) : maker(owner) { ++maker.liveTaps; }
        ~Tap() override { --maker.liveTaps; }
        void enable() override { ++maker.enables; }

    private:
        FakeEventTapMaker& maker;
    };
};

} // namespace tessaline
