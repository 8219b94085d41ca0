#include "platform/linux/wayland/QtWaylandObjects.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <qpa/qplatformnativeinterface.h>
#include <qpa/qplatformwindow.h>
#include <qpa/qwindowsysteminterface.h>

namespace tessaline {

namespace {

void* ofSession(const char* name) {
    return QGuiApplication::platformNativeInterface()->nativeResourceForIntegration(name);
}

} // namespace

wl_display* waylandDisplay() {
    return static_cast<wl_display*>(ofSession("wl_display"));
}

wl_compositor* waylandCompositor() {
    return static_cast<wl_compositor*>(ofSession("compositor"));
}

wl_seat* waylandSeat() {
    return static_cast<wl_seat*>(ofSession("wl_seat"));
}

wl_surface* waylandSurface(QWindow& window) {
    return static_cast<wl_surface*>(
        QGuiApplication::platformNativeInterface()->nativeResourceForWindow("surface", &window));
}

wl_output* waylandOutput(QScreen& screen) {
    if (screen.name().isEmpty()) return nullptr;
    return static_cast<wl_output*>(
        QGuiApplication::platformNativeInterface()->nativeResourceForScreen("output", &screen));
}

void handOutWaylandInput() {
    QWindowSystemInterface::flushWindowSystemEvents();
}

void withdrawSurface(QWindow& window) {
    if (QPlatformWindow* handle = window.handle()) handle->setVisible(false);
}

std::uint32_t waylandInputSerial() {
    return static_cast<std::uint32_t>(reinterpret_cast<std::uintptr_t>(ofSession("serial")));
}

} // namespace tessaline
