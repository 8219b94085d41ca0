#include "prompter/controls/OverlayFade.h"

#include <utility>

namespace tessaline {

namespace {

constexpr TimerMaker::Interval stay{1.0};
constexpr TimerMaker::Interval frame{1.0 / 30.0};
constexpr int fadeSteps = 8;

} // namespace

OverlayFade::OverlayFade(TimerMaker& maker, std::function<void()> changed)
    : timers(maker), onChange(std::move(changed)) {}

void OverlayFade::reveal() {
    show(fadeSteps);
    if (!held) timer = timers.every(stay, [this] { startFading(); });
}

void OverlayFade::hold() {
    held = true;
    timer.reset();
    show(fadeSteps);
}

void OverlayFade::letGo() {
    held = false;
    reveal();
}

void OverlayFade::conceal() {
    held = false;
    timer.reset();
    show(0);
}

double OverlayFade::opacity() const {
    return static_cast<double>(stepsLeft) / fadeSteps;
}

void OverlayFade::startFading() {
    timer = timers.every(frame, [this] { fade(); });
}

void OverlayFade::fade() {
    if (stepsLeft == 1) timer.reset();
    show(stepsLeft - 1);
}

void OverlayFade::show(int steps) {
    if (std::exchange(stepsLeft, steps) != steps) onChange();
}

} // namespace tessaline
