#pragma once

#include "prompter/PrompterPorts.h"

#include <QImage>
#include <QString>

#include <functional>

namespace tessaline {

class AccessibilityTrust;
class ActivationPolicy;
class BundleInformation;
class EventTapMaker;
class FileIcons;
class GlobalKeyMonitor;
class LocalKeyMonitor;
class NoteLibrary;
class NotificationCenter;
class ObsidianIntegration;
class Pasteboard;
class ProcessRunner;
class UsageRecorder;

/// What the delegate borrows of the rest of the program and of the system, for its whole life.
struct Environment {
    PrompterPorts prompter;
    TaskRunner& fileTasks; ///< apart from the prompter's: a hanging read must not hold it up
    NotificationCenter& notifications;
    Pasteboard& pasteboard;
    AccessibilityTrust& trust;
    ProcessRunner& processes;
    const BundleInformation& bundle;
    LocalKeyMonitor& localKeys;
    GlobalKeyMonitor& globalKeys;
    EventTapMaker& eventTaps;
    ActivationPolicy& activationPolicy;
    const FileIcons& icons;
    ObsidianIntegration& obsidian;
    NoteLibrary& notes;
    UsageRecorder& recorder;

    /// Where usage signals go; called once at most.
    std::function<void(const QString& appID)> setTelemetryAppID;
    /// The system's own drawing of a name, or a null image.
    std::function<QImage(const QString& name, const QString& description)> systemSymbol;
    /// Whether the desktop has a place for status items now.
    std::function<bool()> hasStatusArea;
    /// A click on the status item opens its menu without our doing.
    bool statusItemOpensItsMenu = false;
    /// Ends the program, after `applicationWillTerminate`.
    std::function<void()> terminate;
};

} // namespace tessaline
