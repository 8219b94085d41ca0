#pragma once

#include "support/FakeDisplayLink.h"

namespace tessaline {

/// Makes fake display links and refreshes those that live. Must outlive them.
class FakeDisplayLinkMaker final : public DisplayLinkMaker {
public:
    std::unique_ptr<DisplayLink> make(DisplayLink::Callback callback) override {
        ++calls;
        if (!available) return nullptr;
        return std::make_unique<FakeDisplayLink>(std::move(callback), clockFrequency, canStart,
                                                 living);
    }
    void setRefreshRate(double hertz) override { refreshRate = hertz; }

    /// Shows a frame on every link that is started.
    void refresh(std::uint64_t hostTime) {
        for (FakeDisplayLink* link : std::vector(living))
            link->refresh(hostTime);
    }

    /// Whether links can be had at all.
    bool available = true;
    /// Whether those that are made from now on start when they are told to.
    bool canStart = true;
    /// Host clock of the links to be made. At 60 ticks a second, one tick is one frame exactly.
    double clockFrequency = 60.0;
    /// What the maker was told last.
    double refreshRate = 0.0;
    /// How often a link was asked for.
    int calls = 0;
    std::vector<FakeDisplayLink*> living;
};

} // namespace tessaline
