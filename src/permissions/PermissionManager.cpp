#include "permissions/PermissionManager.h"

#include "platform/AccessibilityTrust.h"
#include "platform/BundleInformation.h"
#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/ProcessRunner.h"
#include "settings/PermissionType.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QString PermissionManager::permissionStatusDidChangeNotification() {
    return u"PermissionManagerStatusDidChange"_s;
}

PermissionManager::PermissionManager(const Platform& borrowed) : platform(borrowed) {}

PermissionManager::~PermissionManager() = default;

bool PermissionManager::isAccessibilityGranted() const {
    return platform.trust->isTrusted();
}

void PermissionManager::startPolling(double interval) {
    stopPolling();
    lastAccessibilityStatus = isAccessibilityGranted();
    pollTimer = platform.timers->every(TimerMaker::Interval(interval),
                                       [this] { checkForPermissionChanges(); });
}

void PermissionManager::stopPolling() {
    pollTimer.reset();
}

void PermissionManager::checkForPermissionChanges() {
    const bool granted = isAccessibilityGranted();
    if (lastAccessibilityStatus == granted) return;
    lastAccessibilityStatus = granted;
    platform.mainQueue->post(lifetime.guard([this, granted] {
        platform.notifications->post(
            {permissionStatusDidChangeNotification(),
             this,
             {{u"permission"_s, PermissionType::accessibility}, {u"granted"_s, granted}}});
    }));
}

void PermissionManager::resetStaleEntry() {
    if (isAccessibilityGranted()) return;
    if (const auto identifier = platform.bundle->identifier())
        platform.processes->run(u"/usr/bin/tccutil"_s,
                                {u"reset"_s, u"Accessibility"_s, *identifier});
}

void PermissionManager::resetAndRequestAccessibility() {
    resetStaleEntry();
    platform.trust->requestWithPrompt();
}

} // namespace tessaline
