#include "platform/Platform.h"
#include "platform/linux/DisplayServer.h"
#include "platform/linux/desktop/DesktopApplicationLookup.h"
#include "platform/linux/desktop/DesktopFileIcons.h"
#include "platform/linux/desktop/LinuxActivationPolicy.h"
#include "platform/linux/desktop/LinuxBundleInformation.h"
#include "platform/linux/desktop/MprisControls.h"
#include "platform/qt/KeyTranslation.h"
#include "platform/qt/QtAdapters.h"
#include "platform/qt/QtFileChooser.h"
#include "platform/qt/QtFolderChooser.h"
#include "platform/qt/QtLocalKeyMonitor.h"

#include <QCoreApplication>

namespace tessaline {

std::unique_ptr<Platform> makePlatform() {
    auto platform = std::make_unique<Platform>();
    addQtAdapters(*platform);
    platform->bundle =
        std::make_unique<LinuxBundleInformation>(QCoreApplication::applicationDirPath());
    platform->localKeys = std::make_unique<QtLocalKeyMonitor>(systemKeyTranslation());
    platform->activationPolicy = std::make_unique<LinuxActivationPolicy>();
    platform->applications =
        std::make_unique<DesktopApplicationLookup>(DesktopEntries::installed());
    platform->icons = std::make_unique<DesktopFileIcons>(DesktopEntries::installed());
    platform->folderChooser = std::make_unique<QtFolderChooser>();
    platform->fileChooser = std::make_unique<QtFileChooser>();
    platform->media = std::make_unique<MprisControls>();
    DisplayServer::connected()->addAdapters(*platform);
    return platform;
}

} // namespace tessaline
