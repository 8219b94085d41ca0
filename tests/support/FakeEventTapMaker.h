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
        isOn = true;
        return std::make_unique<Tap>(*this);
    }

    bool wouldAllow() override {
        ++probes;
        return allowed;
    }

    /// The system switches the tap off and tells it.
    void switchOff() {
        isOn = false;
        send({.type = TapEvent::Type::tapDisabled});
    }

    /// Whether the event was passed on or swallowed.
    EventTap::Verdict send(const TapEvent& event) { return handler(event); }

    bool allowed = true;
    int attempts = 0;
    int enables = 0;
    int probes = 0;
    int liveTaps = 0;
    bool isOn = false; ///< of the tap that was made last
    EventTap::Handler handler;

private:
    class Tap final : public EventTap {
    public:
        explicit Tap(FakeEventTapMaker& owner) : maker(owner) { ++maker.liveTaps; }
        ~Tap() override { --maker.liveTaps; }
        void enable() override {
            ++maker.enables;
            maker.isOn = true;
        }
        bool isOn() const override { return maker.isOn; }

    private:
        FakeEventTapMaker& maker;
    };
};

} // namespace tessaline
