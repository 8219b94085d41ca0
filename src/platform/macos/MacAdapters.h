#pragma once

#include "platform/ScreenIdentity.h"

#include <memory>

class QScreen;

namespace tessaline {

class AccessibilityTrust;
class ActivationPolicy;
class ApplicationLookup;
class BundleInformation;
class DisplayLinkMaker;
class EventTapMaker;
class FileIcons;
class FolderChooser;
class GlobalKeyMonitor;
class MediaControls;
class NativeLook;
class StatusArea;
class UserDefaults;
class WindowTraits;

// The adapters for macOS, each defined in the file of its name. Main thread.

std::unique_ptr<AccessibilityTrust> makeAccessibilityTrust();
std::unique_ptr<ActivationPolicy> makeActivationPolicy();
std::unique_ptr<ApplicationLookup> makeApplicationLookup();
std::unique_ptr<BundleInformation> makeBundleInformation();
std::unique_ptr<DisplayLinkMaker> makeDisplayLinkMaker();
std::unique_ptr<EventTapMaker> makeEventTapMaker();
std::unique_ptr<FileIcons> makeFileIcons();
std::unique_ptr<FolderChooser> makeFolderChooser();
std::unique_ptr<GlobalKeyMonitor> makeGlobalKeyMonitor();
std::unique_ptr<MediaControls> makeMediaControls();
std::unique_ptr<NativeLook> makeNativeLook();
std::unique_ptr<StatusArea> makeStatusArea();
std::unique_ptr<UserDefaults> makeUserDefaults();
std::unique_ptr<WindowTraits> makeWindowTraits();

/// What tells a screen from others, in every session.
ScreenIdentity identifyScreen(const QScreen& screen);

} // namespace tessaline
