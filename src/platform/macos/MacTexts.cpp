#include "platform/PlatformTexts.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

const PlatformTexts& platformTexts() {
    static const PlatformTexts texts{
        .subtitle =
            u"Turn your Mac's notch into a teleprompter. Read scripts, notes, or any text right from the top of your screen."_s,
        .permissionTitle = u"Accessibility Access"_s,
        .permissionLabel = u"Accessibility"_s,
        .permissionGranted = u"Permission Granted ✓"_s,
        .granted = u"Granted"_s,
        .notGranted = u"Not granted"_s,
        .permissionAlternative = {},
        .reachOfGestures = u"Works from any app:"_s,
        .obsidianNotDetected = u"Obsidian not detected on this Mac"_s,
        .obsidianInvitation = u"Send notes from Obsidian straight into the notch"_s,
        .pluginInstalled =
            u"Restart Obsidian to activate.\n\nIn Obsidian, you'll find a \"Send to Tessaline\" icon in the sidebar, or press ⌘P and type \"tessaline\"."_s,
        .keyboardRefused = {},
        .pasteHint = u"⌘V"_s,
        .pasteKeys = u"⌘ + V"_s,
        .scrollKeys = u"⌃ + Scroll"_s,
        .scrollClickKeys = u"⌃ + Scroll click"_s,
        .twoFingerTapKeys = u"⌃ + Two-finger tap"_s,
    };
    return texts;
}

} // namespace tessaline
