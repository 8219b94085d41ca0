#pragma once

#include "platform/DisplayLink.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace tessaline {

/// A display link that refreshes when a test says so. Enters itself in the list of living links.
class FakeDisplayLink final : public DisplayLink {
public:
    FakeDisplayLink(Callback action, double frequency, bool starts,
                    std::vector<FakeDisplayLink*>& list)
        : callback(std::move(action)), ticksPerSecond(frequency), canStart(starts), living(list) {
        living.push_back(this);
    }
    ~FakeDisplayLink() override { std::erase(living, this); }
    FakeDisplayLink(const FakeDisplayLink&) = delete;
    FakeDisplayLink& operator=(const FakeDisplayLink&) = delete;

    bool start() override {
        started = canStart;
        return started;
    }
    void stop() override { started = false; }
    double clockFrequency() const override { return ticksPerSecond; }

    bool isStarted() const { return started; }

    /// Shows a frame: calls back if started.
    void refresh(std::uint64_t hostTime) {
        if (started) callback(hostTime);
    }

private:
    Callback callback;
    double ticksPerSecond;
    bool canStart;
    std::vector<FakeDisplayLink*>& living;
    bool started = false;
};

} // namespace tessaline
