#include "prompter/covers/Countdown.h"

#include "platform/TimerMaker.h"

#include <utility>

namespace tessaline {

namespace {

constexpr TimerMaker::Interval second{1.0};

} // namespace

Countdown::Countdown(TimerMaker& timerMaker, std::function<void()> onCount)
    : timers(timerMaker), counted(std::move(onCount)) {}

Countdown::~Countdown() = default;

void Countdown::start(int seconds) {
    left = seconds;
    timer = left > 0 ? timers.every(second, [this] { count(); }) : nullptr;
    counted();
}

void Countdown::stop() {
    left = 0;
    timer.reset();
}

void Countdown::count() {
    if (--left <= 0) stop();
    counted();
}

} // namespace tessaline
