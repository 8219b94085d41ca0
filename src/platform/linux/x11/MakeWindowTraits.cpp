#include "platform/SystemAdapters.h"
#include "platform/linux/x11/X11WindowTraits.h"
#include "platform/unsupported/UnsupportedWindowTraits.h"

#include <QGuiApplication>

namespace tessaline {

std::unique_ptr<WindowTraits> makeWindowTraits() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11) return std::make_unique<UnsupportedWindowTraits>();
    return std::make_unique<X11WindowTraits>(x11->connection());
}

} // namespace tessaline
