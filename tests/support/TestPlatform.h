#pragma once

#include "platform/Platform.h"

namespace tessaline {

class FakeAccessibilityTrust;
class FakeActivationPolicy;
class FakeApplicationLookup;
class FakeBundleInformation;
class FakeDisplayLinkMaker;
class FakeEventTapMaker;
class FakeFileChooser;
class FakeFileIcons;
class FakeFolderChooser;
class FakeGlobalKeyMonitor;
class FakeHttpPoster;
class FakeLocalKeyMonitor;
class FakeMainQueue;
class FakeMediaControls;
class FakeNativeLook;
class FakePasteboard;
class FakeProcessRunner;
class FakeScreens;
class FakeStatusArea;
class FakeTaskRunner;
class FakeTimerMaker;
class FakeUrlOpener;
class FakeUserDefaults;
class FakeWebServer;
class FakeWindowTraits;
class NotificationCenter;

/// A platform of fakes, by the names that the ports have. Tests include the fakes that they use.
struct TestPlatform {
    TestPlatform();
    ~TestPlatform();

    /// What the code under test is handed. Whoever puts a witness before a fake, replaces it here.
    Platform platform;

    FakeMainQueue& mainQueue;
    FakeTimerMaker& timers;
    NotificationCenter& notifications;
    FakeProcessRunner& processes;
    FakeUrlOpener& urlOpener;
    FakeUserDefaults& defaults;
    FakeHttpPoster& http;
    FakeWebServer& web;
    FakeBundleInformation& bundle;
    FakeTaskRunner& renderTasks;
    FakeTaskRunner& fileTasks;
    FakeTaskRunner& scriptTasks;
    FakeTaskRunner& queryTasks;
    FakeTaskRunner& pasteTasks;
    FakeTaskRunner& historyTasks;
    FakeScreens& screens;
    FakeDisplayLinkMaker& displayLinks;
    FakeWindowTraits& windowTraits;
    FakePasteboard& pasteboard;
    FakeAccessibilityTrust& trust;
    FakeLocalKeyMonitor& localKeys;
    FakeGlobalKeyMonitor& globalKeys;
    FakeEventTapMaker& eventTaps;
    FakeNativeLook& look;
    FakeActivationPolicy& activationPolicy;
    FakeStatusArea& statusArea;
    FakeApplicationLookup& applications;
    FakeFileIcons& icons;
    FakeFolderChooser& folderChooser;
    FakeFileChooser& fileChooser;
    FakeMediaControls& media;
};

} // namespace tessaline
