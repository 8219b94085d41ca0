#include "platform/linux/x11/PointerHold.h"

namespace tessaline {

namespace {

using namespace std::chrono_literals;

constexpr double steadyHand = 12.0; // points
constexpr auto rest = 120ms;
constexpr auto scrollPause = 400ms;
constexpr unsigned maxButton = 63;

void setBit(std::uint64_t& bits, unsigned bit, bool value) {
    if (bit > maxButton) return;
    const std::uint64_t mask = std::uint64_t{1} << bit;
    bits = value ? bits | mask : bits & ~mask;
}

} // namespace

void PointerHold::controlChanged(bool isDown) {
    controlIsDown = isDown;
    if (isDown) return;
    chord = false;
    foreignButtons = 0;
    asideUntil = {};
    travelled = 0.0;
}

void PointerHold::otherKeyPressed() {
    chord = controlIsDown;
}

void PointerHold::scrolled(Time now) {
    lastScroll = now;
    asideUntil = {};
    travelled = 0.0;
}

void PointerHold::moved(double distance, Time now) {
    if (now < lastScroll + scrollPause) return;
    if (now > lastMove + rest) travelled = 0.0;
    lastMove = now;
    travelled += distance;
    if (travelled > steadyHand) asideUntil = now + rest;
}

void PointerHold::foreignButtonChanged(unsigned button, bool isDown) {
    setBit(foreignButtons, button, isDown);
}

void PointerHold::ownButtonChanged(unsigned button, bool isDown) {
    setBit(ownButtons, button, isDown);
}

void PointerHold::refused(Time now) {
    asideUntil = now + rest;
}

bool PointerHold::isWanted(Time now) const {
    return ownButtons != 0 || (isPossible() && now >= asideUntil);
}

std::optional<PointerHold::Time> PointerHold::nextLook(Time now) const {
    if (!isPossible() || now >= asideUntil) return std::nullopt;
    return asideUntil;
}

bool PointerHold::isPossible() const {
    return controlIsDown && !chord && foreignButtons == 0;
}

} // namespace tessaline
