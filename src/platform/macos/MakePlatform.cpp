#include "platform/AccessibilityTrust.h"
#include "platform/ActivationPolicy.h"
#include "platform/ApplicationLookup.h"
#include "platform/BundleInformation.h"
#include "platform/DisplayLink.h"
#include "platform/EventTap.h"
#include "platform/FileIcons.h"
#include "platform/FolderChooser.h"
#include "platform/GlobalKeyMonitor.h"
#include "platform/MediaControls.h"
#include "platform/NativeLook.h"
#include "platform/Platform.h"
#include "platform/ReservedEdges.h"
#include "platform/StatusArea.h"
#include "platform/UserDefaults.h"
#include "platform/WindowTraits.h"
#include "platform/macos/MacAdapters.h"
#include "platform/qt/KeyTranslation.h"
#include "platform/qt/QtAdapters.h"
#include "platform/qt/QtFileChooser.h"
#include "platform/qt/QtLocalKeyMonitor.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtScreens.h"

namespace tessaline {

std::unique_ptr<Platform> makePlatform() {
    auto platform = std::make_unique<Platform>();
    addQtAdapters(*platform);
    platform->windowSystem = QStringLiteral("macos");
    platform->defaults = makeUserDefaults();
    platform->bundle = makeBundleInformation();
    // The system tells Qt the visible frame of every screen.
    platform->screens = std::make_unique<QtScreens>(*platform->notifications, *platform->mainQueue,
                                                    identifyScreen, nullptr);
    platform->displayLinks = makeDisplayLinkMaker();
    platform->windowTraits = makeWindowTraits();
    platform->pasteboard = std::make_unique<QtPasteboard>();
    platform->trust = makeAccessibilityTrust();
    platform->localKeys = std::make_unique<QtLocalKeyMonitor>(systemKeyTranslation());
    platform->globalKeys = makeGlobalKeyMonitor();
    platform->eventTaps = makeEventTapMaker();
    platform->look = makeNativeLook();
    platform->activationPolicy = makeActivationPolicy();
    platform->statusArea = makeStatusArea();
    platform->applications = makeApplicationLookup();
    platform->icons = makeFileIcons();
    platform->folderChooser = makeFolderChooser();
    platform->fileChooser = std::make_unique<QtFileChooser>();
    platform->media = makeMediaControls();
    return platform;
}

} // namespace tessaline
