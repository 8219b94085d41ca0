#include "ui/onboarding/ObsidianStatusText.h"

#include "platform/PlatformTexts.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QString ObsidianStatusText::text() const {
    if (!appFound) return platformTexts().obsidianNotDetected;
    if (!vaultFound) return u"No Obsidian vault found"_s;
    return textWithVault();
}

QString ObsidianStatusText::textWithVault() const {
    if (!sourceEnabled) return platformTexts().obsidianInvitation;
    if (!pluginInstalled) return u"Plugin not found"_s;
    return pluginEnabled ? u"Plugin active ✓"_s : u"Plugin installed but disabled in Obsidian"_s;
}

} // namespace tessaline
