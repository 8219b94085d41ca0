#pragma once

#include "analytics/EnvironmentProbe.h"

namespace tessaline {

class ObsidianIntegration;
struct Platform;

/// Answers what the environment snapshot asks, from what is found at that moment.
class ProgramSurroundings final : public EnvironmentProbe {
public:
    /// Borrows both.
    ProgramSurroundings(const ObsidianIntegration& obsidian, const Platform& platform);

    bool isObsidianAppInstalled() const override;
    bool isObsidianVaultFound() const override;
    bool isObsidianPluginInstalled() const override;
    bool isObsidianPluginActive() const override;
    bool isAccessibilityGranted() const override;
    int screenCount() const override;

private:
    const ObsidianIntegration& obsidian;
    const Platform& platform;
};

} // namespace tessaline
