#include "platform/linux/X11DisplayServer.h"

#include "platform/Platform.h"
#include "platform/linux/ClockDisplayLinkMaker.h"
#include "platform/linux/ForeignPasteboard.h"
#include "platform/linux/XWaylandScreens.h"
#include "platform/linux/desktop/ConnectorIdentity.h"
#include "platform/linux/desktop/DesktopStatusArea.h"
#include "platform/linux/desktop/portal/AddShortcutsPortal.h"
#include "platform/linux/x11/X11AccessibilityTrust.h"
#include "platform/linux/x11/X11DarkTitleBars.h"
#include "platform/linux/x11/X11EventTapMaker.h"
#include "platform/linux/x11/X11KeyMonitor.h"
#include "platform/linux/x11/X11ReservedEdges.h"
#include "platform/linux/x11/X11SelectionReader.h"
#include "platform/linux/x11/X11Tray.h"
#include "platform/linux/x11/X11WindowTraits.h"
#include "platform/linux/x11/XWayland.h"
#include "platform/linux/x11/XWaylandWheel.h"
#include "platform/qt/QtScreens.h"

#include <QGuiApplication>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

X11DisplayServer::X11DisplayServer(xcb_connection_t* qtConnection) : connection(qtConnection) {}

void X11DisplayServer::addAdapters(Platform& platform) const {
    const bool xWayland = isXWayland(connection);
    platform.windowSystem = xWayland ? u"xwayland"_s : u"x11"_s;
    platform.screens = std::make_unique<QtScreens>(
        *platform.notifications, *platform.mainQueue,
        xWayland ? identifyByCompositor(platform) : identifyByConnector, X11ReservedEdges::open());
    platform.displayLinks = std::make_unique<ClockDisplayLinkMaker>();
    platform.windowTraits =
        std::make_unique<X11WindowTraits>(connection, xWayland ? X11WindowTraits::Server::xWayland
                                                               : X11WindowTraits::Server::ordinary);
    platform.pasteboard = std::make_unique<ForeignPasteboard>(
        *platform.mainQueue, *platform.pasteTasks,
        [](QString* problem) { return X11SelectionReader().readText(problem); });
    platform.trust = std::make_unique<X11AccessibilityTrust>();
    platform.globalKeys = std::make_unique<X11KeyMonitor>();
    platform.eventTaps = std::make_unique<X11EventTapMaker>();
    platform.look = std::make_unique<X11DarkTitleBars>(connection);
    platform.statusArea =
        std::make_unique<DesktopStatusArea>([server = connection] { return hasX11Tray(server); });
    if (!xWayland) return;
    addShortcutsPortal(platform, GestureReach::xWindows);
    new XWaylandWheel(*qGuiApp);
}

} // namespace tessaline
