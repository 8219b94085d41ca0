#pragma once

#include "prompter/controls/ThemedScroller.h"

namespace tessaline {

class Mirror;

/// The scroller of a script: counts in points, and lies where the end of its lines is seen.
class ScriptScroller : public QObject {
    Q_OBJECT

public:
    /// Belongs to the view and lies over it.
    explicit ScriptScroller(QWidget* view);

    /// Shows where the view is: so many points from the top, of so many that there are.
    void show(double position, double maximum);

    /// Lies where a view that is turned over has it.
    void place(const Mirror& mirror);

    /// Is seen for a moment.
    void reveal() { scroller->reveal(); }

Q_SIGNALS:
    void pressed();
    void moved(double position);

private:
    QWidget* const view;
    ThemedScroller* const scroller;
    double stepsPerPoint = 1.0;
};

} // namespace tessaline
