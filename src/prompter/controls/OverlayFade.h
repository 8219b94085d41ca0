#pragma once

#include <QVariantAnimation>

#include <functional>

namespace tessaline {

/// When an overlay is seen: at once and fully when revealed, a second longer, then fading out.
/// Nothing runs while it is hidden or held.
class OverlayFade {
public:
    /// Starts hidden; `changed` is called after every change of the opacity.
    explicit OverlayFade(std::function<void()> changed);

    /// Shows the overlay and starts its second anew.
    void reveal();

    /// Shows the overlay until it is let go, which starts its second.
    void hold();
    void letGo();

    /// Hides the overlay at once, held or not.
    void conceal();

    /// From 0, hidden, to 1.
    double opacity() const;

    /// Whether the second or the fading is under way.
    bool isRunning() const { return course.state() == QAbstractAnimation::Running; }

private:
    void show(int steps);

    const std::function<void()> onChange;
    QVariantAnimation course; ///< of the steps that are left
    int stepsLeft = 0;
    bool held = false;
};

} // namespace tessaline
