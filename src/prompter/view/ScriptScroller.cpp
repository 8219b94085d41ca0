#include "prompter/view/ScriptScroller.h"

#include "prompter/view/Mirror.h"

#include <QSignalBlocker>

#include <algorithm>

namespace tessaline {

namespace {

/// The scroller counts in whole steps; so many make a point, unless the document is too long.
constexpr double usualStepsPerPoint = 8.0;
constexpr double mostSteps = 1e9;

} // namespace

ScriptScroller::ScriptScroller(QWidget* shownIn)
    : QObject(shownIn), view(shownIn), scroller(new ThemedScroller(shownIn)) {
    scroller->setCursor(Qt::ArrowCursor);
    scroller->setAccessibleName(tr("Scroll position"));
    connect(scroller, &QScrollBar::valueChanged, this,
            [this](int value) { Q_EMIT moved(value / stepsPerPoint); });
    connect(scroller, &QScrollBar::sliderPressed, this, &ScriptScroller::pressed);
}

void ScriptScroller::show(double position, double maximum) {
    stepsPerPoint = std::min(usualStepsPerPoint, mostSteps / std::max(maximum, 1.0));
    const QSignalBlocker blocker(scroller);
    scroller->setRange(0, int(maximum * stepsPerPoint));
    scroller->setPageStep(int(view->height() * stepsPerPoint));
    scroller->setValue(int(position * stepsPerPoint));
}

void ScriptScroller::place(const Mirror& mirror) {
    const double thickness = scroller->sizeHint().width();
    const QRectF written(view->width() - thickness, 0, thickness, view->height());
    scroller->setGeometry(mirror.mirrored(written).toRect());
    scroller->setInvertedAppearance(mirror.isUpsideDown());
}

} // namespace tessaline
