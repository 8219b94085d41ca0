#pragma once

#include <QMargins>
#include <QObject>

#include <functional>

class QWindow;

namespace tessaline {

/// Tells when a window gets its frame from the window manager, or another one: some time after it
/// is shown, each time. Lives as long as the window.
class FrameMarginsWatch : public QObject {
public:
    FrameMarginsWatch(QWindow& window, std::function<void()> onChange);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWindow& window;
    const std::function<void()> onChange;
    QMargins known;
};

} // namespace tessaline
