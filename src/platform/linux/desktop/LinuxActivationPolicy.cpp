#include "platform/linux/desktop/LinuxActivationPolicy.h"

#include <QGuiApplication>
#include <QWindow>

#include <algorithm>

namespace tessaline {

void LinuxActivationPolicy::set(Kind) {}

void LinuxActivationPolicy::activateIgnoringOtherApps() {
    const auto windows = QGuiApplication::topLevelWindows();
    const auto managed = std::find_if(windows.rbegin(), windows.rend(), [](const QWindow* window) {
        return window->isVisible() && window->type() == Qt::Window &&
               !window->flags().testFlag(Qt::BypassWindowManagerHint);
    });
    if (managed == windows.rend()) return;
    (*managed)->raise();
    (*managed)->requestActivate();
}

} // namespace tessaline
