#include "app/ProgramSurroundings.h"

#include "platform/AccessibilityTrust.h"
#include "platform/Platform.h"
#include "platform/Screens.h"
#include "sources/ObsidianIntegration.h"

namespace tessaline {

ProgramSurroundings::ProgramSurroundings(const ObsidianIntegration& integration,
                                         const Platform& system)
    : obsidian(integration), platform(system) {}

bool ProgramSurroundings::isObsidianAppInstalled() const {
    return obsidian.obsidianAppPath().has_value();
}

bool ProgramSurroundings::isObsidianVaultFound() const {
    return obsidian.findObsidianVault().has_value();
}

bool ProgramSurroundings::isObsidianPluginInstalled() const {
    return obsidian.isPluginInstalled();
}

bool ProgramSurroundings::isObsidianPluginActive() const {
    return obsidian.isPluginEnabled();
}

bool ProgramSurroundings::isAccessibilityGranted() const {
    return platform.trust->isTrusted();
}

int ProgramSurroundings::screenCount() const {
    return int(platform.screens->all().size());
}

} // namespace tessaline
