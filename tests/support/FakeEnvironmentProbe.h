#pragma once

#include "analytics/EnvironmentProbe.h"

namespace tessaline {

/// Answers what the test wants.
class FakeEnvironmentProbe final : public EnvironmentProbe {
public:
    bool isObsidianAppInstalled() const override { return appInstalled; }
    bool isObsidianVaultFound() const override { return vaultFound; }
    bool isObsidianPluginInstalled() const override { return pluginInstalled; }
    bool isObsidianPluginActive() const override { return pluginActive; }
    bool isAccessibilityGranted() const override { return accessibilityGranted; }
    int screenCount() const override { return screens; }

    bool appInstalled = false;
    bool vaultFound = false;
    bool pluginInstalled = false;
    bool pluginActive = false;
    bool accessibilityGranted = false;
    int screens = 1;
};

} // namespace tessaline
