#include "platform/PlatformTexts.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

const PlatformTexts& platformTexts() {
    static const PlatformTexts texts{
        .subtitle =
            u"Turn the top of your screen into a teleprompter. Read scripts, notes, or any text right below your camera."_s,
        .permissionTitle = u"Shortcuts in Any Application"_s,
        .permissionLabel = u"Shortcuts in Any Application"_s,
        .permissionGranted = u"Available ✓"_s,
        .granted = u"Available"_s,
        .notGranted = u"Not available"_s,
        .permissionAlternative =
            u"Not available on this desktop: in its keyboard settings, bind a key to “tessaline ctl toggle” instead."_s,
        .reachOfGestures = u"Works from any app:"_s,
        .obsidianNotDetected = u"Obsidian not detected on this computer"_s,
        .obsidianInvitation = u"Send notes from Obsidian straight into the prompter"_s,
        .pluginInstalled =
            u"Restart Obsidian to activate.\n\nIn Obsidian, you'll find a \"Send to Tessaline\" icon in the sidebar, or press Ctrl+P and type \"tessaline\"."_s,
        .keyboardRefused =
            u"This desktop leaves the keyboard to the other window. Use the wheel and the buttons, or bind keys to “tessaline ctl toggle”."_s,
        .pasteHint = u"Ctrl+V"_s,
        .pasteKeys = u"Ctrl + V"_s,
        .scrollKeys = u"Ctrl + Scroll"_s,
        .scrollClickKeys = u"Ctrl + Scroll click"_s,
        .twoFingerTapKeys = u"Ctrl + Two-finger tap"_s,
    };
    return texts;
}

} // namespace tessaline
