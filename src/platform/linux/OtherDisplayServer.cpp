#include "platform/linux/OtherDisplayServer.h"

#include "platform/Platform.h"
#include "platform/ReservedEdges.h"
#include "platform/linux/ClockDisplayLinkMaker.h"
#include "platform/linux/desktop/ConnectorIdentity.h"
#include "platform/linux/desktop/DesktopStatusArea.h"
#include "platform/linux/desktop/portal/AddShortcutsPortal.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtScreens.h"
#include "platform/unsupported/UnsupportedAccessibilityTrust.h"
#include "platform/unsupported/UnsupportedEventTapMaker.h"
#include "platform/unsupported/UnsupportedGlobalKeyMonitor.h"
#include "platform/unsupported/UnsupportedNativeLook.h"
#include "platform/unsupported/UnsupportedWindowTraits.h"

#include <QGuiApplication>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

void OtherDisplayServer::addAdapters(Platform& platform) const {
    platform.windowSystem = QGuiApplication::platformName();
    platform.screens = std::make_unique<QtScreens>(*platform.notifications, *platform.mainQueue,
                                                   identifyByConnector, nullptr);
    platform.displayLinks = std::make_unique<ClockDisplayLinkMaker>();
    platform.windowTraits = std::make_unique<UnsupportedWindowTraits>();
    platform.pasteboard = std::make_unique<QtPasteboard>();
    platform.trust = std::make_unique<UnsupportedAccessibilityTrust>();
    platform.eventTaps = std::make_unique<UnsupportedEventTapMaker>();
    platform.look = std::make_unique<UnsupportedNativeLook>();
    platform.statusArea = std::make_unique<DesktopStatusArea>([] { return false; });
    if (platform.windowSystem.startsWith("wayland"_L1)) {
        addShortcutsPortal(platform, GestureReach::none);
    } else {
        platform.globalKeys = std::make_unique<UnsupportedGlobalKeyMonitor>();
    }
}

} // namespace tessaline
