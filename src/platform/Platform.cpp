#include "platform/Platform.h"

#include "platform/AccessibilityTrust.h"
#include "platform/ActivationPolicy.h"
#include "platform/ApplicationLookup.h"
#include "platform/BundleInformation.h"
#include "platform/DisplayLink.h"
#include "platform/EventTap.h"
#include "platform/FileChooser.h"
#include "platform/FileIcons.h"
#include "platform/FolderChooser.h"
#include "platform/GlobalKeyMonitor.h"
#include "platform/HttpPoster.h"
#include "platform/LocalKeyMonitor.h"
#include "platform/MainQueue.h"
#include "platform/MediaControls.h"
#include "platform/NativeLook.h"
#include "platform/NotificationCenter.h"
#include "platform/Pasteboard.h"
#include "platform/ProcessRunner.h"
#include "platform/Screens.h"
#include "platform/StatusArea.h"
#include "platform/TaskRunner.h"
#include "platform/TimerMaker.h"
#include "platform/UrlOpener.h"
#include "platform/UserDefaults.h"
#include "platform/WebServer.h"
#include "platform/WindowTraits.h"

namespace tessaline {

Platform::Platform() = default;
Platform::~Platform() = default;

} // namespace tessaline
