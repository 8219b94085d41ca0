#pragma once

#include "platform/Lifetime.h"
#include "platform/TimerMaker.h"

#include <QString>

#include <memory>
#include <optional>

namespace tessaline {

struct Platform;

/// Watches the Accessibility permission, tells when it changes, and repairs it.
class PermissionManager {
public:
    /// Posted with the manager as sender; user info "permission" holds the `PermissionType`,
    /// "granted" a bool.
    static QString permissionStatusDidChangeNotification();

    /// Borrows the platform.
    explicit PermissionManager(const Platform& platform);
    ~PermissionManager();
    PermissionManager(const PermissionManager&) = delete;
    PermissionManager& operator=(const PermissionManager&) = delete;

    /// The state at this moment.
    bool isAccessibilityGranted() const;

    /// Looks every so many seconds from now on, in place of any earlier rhythm. The present state
    /// is where changes are counted from.
    void startPolling(double interval);
    void stopPolling();

    /// Clears an entry of the program's that no longer counts, unless the permission is granted.
    /// Waits for the system's tool; its failure does not matter.
    void resetStaleEntry();

    /// The above, then asks the system to prompt for the permission.
    void resetAndRequestAccessibility();

private:
    void checkForPermissionChanges();

    const Platform& platform;
    std::unique_ptr<RepeatingTimer> pollTimer;
    std::optional<bool> lastAccessibilityStatus;
    Lifetime lifetime;
};

} // namespace tessaline
