#include "prompter/view/Glide.h"

#include <QEasingCurve>

#include <utility>

namespace tessaline {

namespace {

constexpr int courseMilliseconds = 500;

} // namespace

Glide::Glide(Place placeOf, std::function<void(double distance)> moveBy)
    : place(std::move(placeOf)), move(std::move(moveBy)) {
    course.setDuration(courseMilliseconds);
    course.setEasingCurve(QEasingCurve::InOutCubic);
    course.setStartValue(0.0);
    course.setEndValue(1.0);
    QObject::connect(&course, &QVariantAnimation::valueChanged, &course,
                     [this](const QVariant& share) { step(share.toDouble()); });
    QObject::connect(&course, &QVariantAnimation::finished, &course, [this] {
        const auto arrived = std::exchange(onArrival, nullptr);
        arrived();
    });
}

void Glide::start(Place newTarget, std::function<void()> arrived) {
    course.stop();
    target = std::move(newTarget);
    onArrival = std::move(arrived);
    done = 0.0;
    course.start();
}

void Glide::stop() {
    course.stop();
}

/// Goes the part of what is left of the way that falls to this step.
void Glide::step(double share) {
    if (!isUnderWay() || share <= done || done >= 1.0) return;
    const double part = (share - done) / (1.0 - done);
    done = share;
    move((target() - place()) * part);
}

} // namespace tessaline
