#include "platform/linux/DisplayChoice.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

DisplayChoice DisplayChoice::from(const Environment& variable) {
    if (!variable("QT_QPA_PLATFORM").isEmpty()) return {};
    if (!variable("DISPLAY").isEmpty()) return {.platform = u"xcb"_s};
    if (!variable("WAYLAND_DISPLAY").isEmpty()) return {.platform = u"wayland"_s};
    return {.problem = u"there is no display to show the prompter on (DISPLAY is not set)"_s};
}

} // namespace tessaline
