#include "platform/linux/x11/X11EventTapMaker.h"

#include "platform/PlatformLog.h"
#include "platform/linux/x11/X11EventTap.h"

#include <utility>

namespace tessaline {

std::unique_ptr<EventTap> X11EventTapMaker::create(EventTap::Handler handler) {
    auto tap = X11EventTap::create(std::move(handler));
    if (tap) {
        reportedRefusal = false;
    } else if (!std::exchange(reportedRefusal, true)) {
        qCWarning(inputLog, "Control with the wheel and the buttons is with another program now.");
    }
    return tap;
}

} // namespace tessaline
