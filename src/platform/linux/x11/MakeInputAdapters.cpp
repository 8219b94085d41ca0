#include "platform/SystemAdapters.h"
#include "platform/linux/x11/X11AccessibilityTrust.h"
#include "platform/linux/x11/X11EventTapMaker.h"
#include "platform/linux/x11/X11KeyMonitor.h"
#include "platform/qt/QtLocalKeyMonitor.h"
#include "platform/unsupported/UnsupportedAccessibilityTrust.h"
#include "platform/unsupported/UnsupportedEventTapMaker.h"
#include "platform/unsupported/UnsupportedGlobalKeyMonitor.h"

#include <QGuiApplication>

namespace tessaline {

namespace {

bool isOnX11() {
    return qGuiApp->nativeInterface<QNativeInterface::QX11Application>() != nullptr;
}

} // namespace

std::unique_ptr<AccessibilityTrust> makeAccessibilityTrust() {
    if (!isOnX11()) return std::make_unique<UnsupportedAccessibilityTrust>();
    return std::make_unique<X11AccessibilityTrust>();
}

std::unique_ptr<GlobalKeyMonitor> makeGlobalKeyMonitor() {
    if (!isOnX11()) return std::make_unique<UnsupportedGlobalKeyMonitor>();
    return std::make_unique<X11KeyMonitor>();
}

std::unique_ptr<EventTapMaker> makeEventTapMaker() {
    if (!isOnX11()) return std::make_unique<UnsupportedEventTapMaker>();
    return std::make_unique<X11EventTapMaker>();
}

std::unique_ptr<LocalKeyMonitor> makeLocalKeyMonitor() {
    return std::make_unique<QtLocalKeyMonitor>(KeyTranslation::control);
}

} // namespace tessaline
