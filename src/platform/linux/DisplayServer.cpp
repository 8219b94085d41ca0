#include "platform/linux/DisplayServer.h"

#include "platform/linux/OtherDisplayServer.h"
#include "platform/linux/WaylandDisplayServer.h"
#include "platform/linux/X11DisplayServer.h"

#include <QGuiApplication>

namespace tessaline {

std::unique_ptr<const DisplayServer> DisplayServer::connected() {
    const auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    // Without a server Qt's offscreen platform has the interface all the same.
    if (x11 && x11->connection()) return std::make_unique<X11DisplayServer>(x11->connection());
    if (auto wayland = WaylandDisplayServer::connected()) return wayland;
    return std::make_unique<OtherDisplayServer>();
}

} // namespace tessaline
