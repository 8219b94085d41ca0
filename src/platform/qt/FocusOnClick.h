#pragma once

#include <QObject>

class QMouseEvent;
class QWindow;

namespace tessaline {

class WindowTraits;

/// Gives a window that the window manager leaves alone the keyboard when it is clicked, and returns
/// it when the pointer leaves and when the window is hidden: the speaker who clicked into the
/// prompter goes on paging the slides. A drag that leaves the window keeps the keyboard until the
/// button is released.
class FocusOnClick final : public QObject {
public:
    /// Watches the window, which owns this object. The traits are borrowed.
    FocusOnClick(QWindow& window, WindowTraits& traits);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool releasedOutside(const QMouseEvent& event) const;

    QWindow& window;
    WindowTraits& traits;
};

} // namespace tessaline
