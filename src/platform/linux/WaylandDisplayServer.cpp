#include "platform/linux/WaylandDisplayServer.h"

#include "platform/Platform.h"
#include "platform/ReservedEdges.h"
#include "platform/linux/ForeignPasteboard.h"
#include "platform/linux/desktop/ConnectorIdentity.h"
#include "platform/linux/desktop/DesktopStatusArea.h"
#include "platform/linux/desktop/portal/AddShortcutsPortal.h"
#include "platform/linux/wayland/FrameDisplayLinkMaker.h"
#include "platform/linux/wayland/LayerShellOffer.h"
#include "platform/linux/wayland/LayerWindowTraits.h"
#include "platform/linux/wayland/SurfaceFrames.h"
#include "platform/linux/wayland/SurfaceRoles.h"
#include "platform/linux/wayland/WaylandSelectionReader.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtScreens.h"
#include "platform/unsupported/UnsupportedAccessibilityTrust.h"
#include "platform/unsupported/UnsupportedEventTapMaker.h"
#include "platform/unsupported/UnsupportedNativeLook.h"

#include <QGuiApplication>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// To Qt a clipboard is empty while no window of ours has the keyboard.
std::unique_ptr<Pasteboard> makePasteboard(const Platform& platform) {
    if (!WaylandSelectionReader::isOffered()) return std::make_unique<QtPasteboard>();
    return std::make_unique<ForeignPasteboard>(
        *platform.mainQueue, *platform.pasteTasks,
        [](QString* problem) { return WaylandSelectionReader().readText(problem); });
}

} // namespace

std::unique_ptr<WaylandDisplayServer> WaylandDisplayServer::connected() {
    if (!QGuiApplication::platformName().startsWith("wayland"_L1)) return nullptr;
    if (!areRolesLeftToUs()) return nullptr;
    return std::make_unique<WaylandDisplayServer>();
}

void WaylandDisplayServer::addAdapters(Platform& platform) const {
    platform.windowSystem = u"wayland"_s;
    const auto frames = std::make_shared<SurfaceFrames>();
    platform.screens = std::make_unique<QtScreens>(*platform.notifications, *platform.mainQueue,
                                                   identifyByConnector, nullptr);
    platform.displayLinks = std::make_unique<FrameDisplayLinkMaker>(frames);
    platform.windowTraits =
        std::make_unique<LayerWindowTraits>(std::make_unique<SurfaceRoles>(), frames);
    platform.pasteboard = makePasteboard(platform);
    platform.trust = std::make_unique<UnsupportedAccessibilityTrust>();
    platform.eventTaps = std::make_unique<UnsupportedEventTapMaker>();
    platform.look = std::make_unique<UnsupportedNativeLook>();
    platform.statusArea = std::make_unique<DesktopStatusArea>([] { return false; });
    addShortcutsPortal(platform, GestureReach::none);
}

} // namespace tessaline
