#pragma once

#include "platform/MediaControls.h"

#include <optional>

namespace tessaline {

/// Media controls whose keys the test presses.
class FakeMediaControls final : public MediaControls {
public:
    void show(const Playing& playing, Player& shownPlayer) override {
        shown = playing;
        player = &shownPlayer;
        ++timesShown;
    }
    void tellJump() override { ++jumps; }
    void withdraw() override {
        shown.reset();
        player = nullptr;
    }

    void press(Wish::Deed deed, double number = 0.0) { player->carryOut({deed, number}); }

    std::optional<Playing> shown;
    Player* player = nullptr;
    int timesShown = 0;
    int jumps = 0;
};

} // namespace tessaline
