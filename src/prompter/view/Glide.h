#pragma once

#include <QVariantAnimation>

#include <functional>

namespace tessaline {

/// Moves something to a place within half a second, smoothly at both ends.
class Glide {
public:
    using Place = std::function<double()>;

    /// `place` says where it is, `move` moves it on by so much.
    Glide(Place place, std::function<void(double distance)> move);

    /// Begins from where it is, whatever was under way. The target is asked for at every step, as
    /// it may move; `arrived` is called once it is reached.
    void start(Place target, std::function<void()> arrived);

    /// Leaves it where it is.
    void stop();

    bool isUnderWay() const { return course.state() == QAbstractAnimation::Running; }

private:
    void step(double share);

    const Place place;
    const std::function<void(double distance)> move;
    Place target;
    std::function<void()> onArrival;
    double done = 0.0; ///< share of the way
    QVariantAnimation course;
};

} // namespace tessaline
