#include "prompter/controls/OverlayFade.h"

#include <cmath>
#include <utility>

namespace tessaline {

namespace {

constexpr int stayMilliseconds = 1000;
constexpr int fadeSteps = 8;
constexpr int fadeMilliseconds = 267; // thirty steps a second
constexpr int courseMilliseconds = stayMilliseconds + fadeMilliseconds;

} // namespace

OverlayFade::OverlayFade(std::function<void()> changed) : onChange(std::move(changed)) {
    course.setDuration(courseMilliseconds);
    course.setStartValue(double(fadeSteps));
    course.setKeyValueAt(double(stayMilliseconds) / courseMilliseconds, double(fadeSteps));
    course.setEndValue(0.0);
    // A few steps instead of every value: each one repaints what lies below the overlay.
    QObject::connect(&course, &QVariantAnimation::valueChanged, &course,
                     [this](const QVariant& steps) { show(int(std::ceil(steps.toDouble()))); });
}

void OverlayFade::reveal() {
    course.stop();
    show(fadeSteps);
    if (!held) course.start();
}

void OverlayFade::hold() {
    held = true;
    reveal();
}

void OverlayFade::letGo() {
    held = false;
    reveal();
}

void OverlayFade::conceal() {
    held = false;
    course.stop();
    show(0);
}

double OverlayFade::opacity() const {
    return static_cast<double>(stepsLeft) / fadeSteps;
}

void OverlayFade::show(int steps) {
    if (std::exchange(stepsLeft, steps) != steps) onChange();
}

} // namespace tessaline
