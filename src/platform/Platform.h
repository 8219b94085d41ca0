#pragma once

#include <QString>

#include <memory>

namespace tessaline {

class AccessibilityTrust;
class ActivationPolicy;
class ApplicationLookup;
class BundleInformation;
class DisplayLinkMaker;
class EventTapMaker;
class FileChooser;
class FileIcons;
class FolderChooser;
class GlobalKeyMonitor;
class HttpPoster;
class LocalKeyMonitor;
class MainQueue;
class MediaControls;
class NativeLook;
class NotificationCenter;
class Pasteboard;
class ProcessRunner;
class Screens;
class StatusArea;
class TaskRunner;
class TimerMaker;
class UrlOpener;
class UserDefaults;
class WebServer;
class WindowTraits;

/// The system that the program runs on: an adapter behind every port, none of them null. Whoever is
/// handed it borrows it and includes the headers of the ports that it uses. In the order of need:
/// what is destroyed first may still use what stands above it.
struct Platform {
    Platform();
    ~Platform();
    Platform(const Platform&) = delete;
    Platform& operator=(const Platform&) = delete;

    QString windowSystem; ///< what shows the windows: "x11", "xwayland", "wayland" or "macos"

    std::unique_ptr<MainQueue> mainQueue;
    std::unique_ptr<TimerMaker> timers;
    std::unique_ptr<NotificationCenter> notifications;
    std::unique_ptr<ProcessRunner> processes;
    std::unique_ptr<UrlOpener> urlOpener;
    std::unique_ptr<UserDefaults> defaults;
    std::unique_ptr<HttpPoster> http;
    std::unique_ptr<WebServer> web;
    std::unique_ptr<BundleInformation> bundle;

    // What hangs on one of these must not hold up the others.
    std::unique_ptr<TaskRunner> renderTasks;
    std::unique_ptr<TaskRunner> fileTasks;
    std::unique_ptr<TaskRunner> scriptTasks;
    std::unique_ptr<TaskRunner> queryTasks; ///< what is asked of other applications
    std::unique_ptr<TaskRunner> pasteTasks;
    std::unique_ptr<TaskRunner> historyTasks;

    std::unique_ptr<Screens> screens;
    std::unique_ptr<DisplayLinkMaker> displayLinks;
    std::unique_ptr<WindowTraits> windowTraits;
    std::unique_ptr<Pasteboard> pasteboard;
    std::unique_ptr<AccessibilityTrust> trust;
    std::unique_ptr<LocalKeyMonitor> localKeys;
    std::unique_ptr<GlobalKeyMonitor> globalKeys;
    std::unique_ptr<EventTapMaker> eventTaps;

    std::unique_ptr<NativeLook> look;
    std::unique_ptr<ActivationPolicy> activationPolicy;
    std::unique_ptr<StatusArea> statusArea;
    std::unique_ptr<ApplicationLookup> applications;
    std::unique_ptr<FileIcons> icons;
    std::unique_ptr<FolderChooser> folderChooser;
    std::unique_ptr<FileChooser> fileChooser;
    std::unique_ptr<MediaControls> media;
};

/// The system at hand, with the session that the program runs in. Needs the QApplication, which
/// must outlive it.
std::unique_ptr<Platform> makePlatform();

} // namespace tessaline
