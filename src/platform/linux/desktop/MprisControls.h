#pragma once

#include "platform/MediaControls.h"

#include <memory>

namespace tessaline {

class MprisService;

/// The media controls of Linux desktops, which find a player on the session bus by its name and
/// drive it by the interface MPRIS. Where there is no bus, nobody does.
class MprisControls final : public MediaControls {
public:
    MprisControls();
    ~MprisControls() override;

    void show(const Playing& playing, Player& player) override;
    void tellJump() override;
    void withdraw() override;

private:
    std::unique_ptr<MprisService> service; ///< while something plays
};

} // namespace tessaline
