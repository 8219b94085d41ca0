#pragma once

#include <QRect>
#include <QVariantAnimation>

namespace tessaline {

/// The desktop's standard animation of a window from one frame to another: the further, the longer.
class ResizeAnimation : public QVariantAnimation {
    Q_OBJECT

public:
    ResizeAnimation();

    /// Begins anew; both in Qt's coordinates.
    void run(const QRect& from, const QRect& to);

    bool isRunning() const { return state() == Running; }
    QRect target() const { return endValue().toRect(); }

Q_SIGNALS:
    void reached(const QRect& frame);

protected:
    void updateCurrentValue(const QVariant& value) override;
};

} // namespace tessaline
