#include "app/ProgramSurroundings.h"

#include "platform/AccessibilityTrust.h"
#include "platform/Screens.h"
#include "sources/ObsidianIntegration.h"

namespace tessaline {

ProgramSurroundings::ProgramSurroundings(const ObsidianIntegration& integration,
                                         const AccessibilityTrust& accessibility,
                                         const Screens& displays)
    : obsidian(integration), trust(accessibility), screens(displays) {}

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
    return trust.isTrusted();
}

int ProgramSurroundings::screenCount() const {
    return int(screens.all().size());
}

} // namespace tessaline
