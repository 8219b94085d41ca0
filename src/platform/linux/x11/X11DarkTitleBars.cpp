#include "platform/linux/x11/X11DarkTitleBars.h"

#include "platform/linux/x11/XcbAtom.h"

#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QWindow>

#include <xcb/xcb.h>

#include <string_view>

namespace tessaline {
namespace {

constexpr std::string_view dark = "dark";

} // namespace

X11DarkTitleBars::X11DarkTitleBars(xcb_connection_t* qtConnection)
    : connection(qtConnection)
    , variant(xcbAtom(connection, "_GTK_THEME_VARIANT"))
    , utf8(xcbAtom(connection, "UTF8_STRING")) {}

bool X11DarkTitleBars::showDark() {
    qGuiApp->installEventFilter(this);
    return false;
}

bool X11DarkTitleBars::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() != QEvent::PlatformSurface) return false;
    const auto* window = qobject_cast<QWindow*>(watched);
    const auto change = static_cast<QPlatformSurfaceEvent*>(event)->surfaceEventType();
    if (window && window->isTopLevel() && change == QPlatformSurfaceEvent::SurfaceCreated)
        xcb_change_property(connection, XCB_PROP_MODE_REPLACE,
                            static_cast<xcb_window_t>(window->winId()), variant, utf8, 8,
                            std::uint32_t(dark.size()), dark.data());
    return false;
}

} // namespace tessaline
