#include "platform/linux/desktop/MprisControls.h"

#include "platform/linux/desktop/MprisService.h"

namespace tessaline {

MprisControls::MprisControls() = default;
MprisControls::~MprisControls() = default;

void MprisControls::show(const Playing& playing, Player& player) {
    if (service) {
        service->show(playing);
    } else {
        service = std::make_unique<MprisService>(playing, player);
    }
}

void MprisControls::tellJump() {
    if (service) service->tellJump();
}

void MprisControls::withdraw() {
    service.reset();
}

} // namespace tessaline
