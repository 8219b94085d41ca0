#include "prompter/ResizeAnimation.h"

#include <QEasingCurve>

#include <cstdlib>

namespace tessaline {

namespace {

/// It takes this long for every so many points.
constexpr double milliseconds = 200.0;
constexpr double points = 150.0;

} // namespace

ResizeAnimation::ResizeAnimation() {
    setEasingCurve(QEasingCurve::InOutSine);
}

void ResizeAnimation::run(const QRect& from, const QRect& to) {
    const int distance = std::abs(to.height() - from.height());
    stop();
    setStartValue(from);
    setEndValue(to);
    setDuration(int(distance / points * milliseconds));
    start();
}

/// There are values also while it is being set up.
void ResizeAnimation::updateCurrentValue(const QVariant& value) {
    if (isRunning()) Q_EMIT reached(value.toRect());
}

} // namespace tessaline
