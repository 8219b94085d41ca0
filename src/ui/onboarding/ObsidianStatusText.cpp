#include "ui/onboarding/ObsidianStatusText.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QString ObsidianStatusText::text() const {
    if (!appFound) return u"Obsidian not detected on this Mac"_s;
    if (!vaultFound) return u"No Obsidian vault found"_s;
    return textWithVault();
}

QString ObsidianStatusText::textWithVault() const {
    if (!sourceEnabled) return u"Send notes from Obsidian straight into the notch"_s;
    if (!pluginInstalled) return u"Plugin not found"_s;
    return pluginEnabled ? u"Plugin active ✓"_s : u"Plugin installed but disabled in Obsidian"_s;
}

} // namespace tessaline
