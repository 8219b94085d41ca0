#pragma once

#include "analytics/EnvironmentProbe.h"

namespace tessaline {

class AccessibilityTrust;
class ObsidianIntegration;
class Screens;

/// Answers what the environment snapshot asks, from what is found at that moment. Main thread only.
class ProgramSurroundings final : public EnvironmentProbe {
public:
    /// Borrows all three.
    ProgramSurroundings(const ObsidianIntegration& obsidian, const AccessibilityTrust& trust,
                        const Screens& screens);

    bool isObsidianAppInstalled() const override;
    bool isObsidianVaultFound() const override;
    bool isObsidianPluginInstalled() const override;
    bool isObsidianPluginActive() const override;
    bool isAccessibilityGranted() const override;
    int screenCount() const override;

private:
    const ObsidianIntegration& obsidian;
    const AccessibilityTrust& trust;
    const Screens& screens;
};

} // namespace tessaline
