#include "app/PrompterApplication.h"

#include "analytics/Analytics.h"
#include "analytics/SharedInstance.h"
#include "analytics/TelemetryDeckClient.h"
#include "app/AppDelegate.h"
#include "app/DarkAppearance.h"
#include "app/ProgramSurroundings.h"
#include "app/RemoteCommands.h"
#include "app/cli/Console.h"
#include "app/cli/ExitStatus.h"
#include "app/remote/InstanceServer.h"
#include "platform/AccessibilityTrust.h"
#include "platform/ActivationPolicy.h"
#include "platform/ApplicationLookup.h"
#include "platform/BundleInformation.h"
#include "platform/DisplayLink.h"
#include "platform/EventTap.h"
#include "platform/FileIcons.h"
#include "platform/GlobalKeyMonitor.h"
#include "platform/LocalKeyMonitor.h"
#include "platform/SystemAdapters.h"
#include "platform/ThreadTaskRunner.h"
#include "platform/WindowTraits.h"
#include "platform/qt/QtFolderChooser.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtProcessRunner.h"
#include "platform/qt/QtScreens.h"
#include "platform/qt/QtTimerMaker.h"
#include "platform/qt/QtUrlOpener.h"
#include "platform/qt/QtUserDefaults.h"
#include "platform/qt/StopSignals.h"
#include "settings/SupportFolder.h"
#include "sources/notes/AppleNotesLibrary.h"
#include "sources/obsidian/InstalledObsidian.h"

#include <QApplication>
#include <QIcon>
#include <QLoggingCategory>
#include <QNetworkAccessManager>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

Q_LOGGING_CATEGORY(shellLog, "app.tessaline.Tessaline.shell", QtInfoMsg)

/// The system as the program sees it, and what is built directly upon that. In the order of need:
/// whoever is destroyed first may still use those above.
struct Machine {
    QtMainQueue mainQueue;
    QtTimerMaker timers;
    NotificationCenter notifications;
    QtPasteboard pasteboard;
    QtUrlOpener urlOpener;
    QtUserDefaults defaults;
    QtFolderChooser folderChooser;
    QtProcessRunner processes;
    ThreadTaskRunner renderTasks;
    ThreadTaskRunner fileTasks;
    ThreadTaskRunner noteTasks;
    ThreadTaskRunner historyTasks;
    QNetworkAccessManager network;
    std::unique_ptr<BundleInformation> bundle = makeBundleInformation();
    std::unique_ptr<DisplayLinkMaker> displayLinks = makeDisplayLinkMaker();
    std::unique_ptr<WindowTraits> windowTraits = makeWindowTraits();
    std::unique_ptr<AccessibilityTrust> trust = makeAccessibilityTrust();
    std::unique_ptr<LocalKeyMonitor> localKeys = makeLocalKeyMonitor();
    std::unique_ptr<GlobalKeyMonitor> globalKeys = makeGlobalKeyMonitor();
    std::unique_ptr<EventTapMaker> eventTaps = makeEventTapMaker();
    std::unique_ptr<ActivationPolicy> activationPolicy = makeActivationPolicy();
    std::unique_ptr<ApplicationLookup> applications = makeApplicationLookup();
    std::unique_ptr<FileIcons> icons = makeFileIcons();
    QtScreens screens{notifications, mainQueue, identifyScreen};
    InstalledObsidian obsidian{homeFolderPath(), *applications, *bundle, folderChooser};
    AppleNotesLibrary notes{mainQueue, noteTasks, processes, urlOpener};
    ProgramSurroundings surroundings{obsidian, *trust, screens};

    SharedInstance<TelemetryDeckClient> telemetry{[this] {
        return std::make_unique<TelemetryDeckClient>(
            TelemetryDeckClient::Ports{timers, network, defaults, *bundle});
    }};
    SharedInstance<Analytics> analytics{[this] {
        TelemetryDeckClient& client = TelemetryDeckClient::shared();
        return std::make_unique<Analytics>(Analytics::Ports{
            timers, historyTasks, *bundle, surroundings,
            [&client](const QString& name, const Analytics::Properties& parameters) {
                client.signal(name, parameters);
            }});
    }};

    Environment environment() {
        return {
            .prompter = {mainQueue, renderTasks, timers, *displayLinks, screens, *windowTraits},
            .fileTasks = fileTasks,
            .notifications = notifications,
            .pasteboard = pasteboard,
            .trust = *trust,
            .processes = processes,
            .bundle = *bundle,
            .localKeys = *localKeys,
            .globalKeys = *globalKeys,
            .eventTaps = *eventTaps,
            .activationPolicy = *activationPolicy,
            .icons = *icons,
            .obsidian = obsidian,
            .notes = notes,
            .recorder = Analytics::shared(),
            .setTelemetryAppID =
                [](const QString& appID) { TelemetryDeckClient::shared().setAppID(appID); },
            .systemSymbol = &systemSymbol,
            .statusItemOpensItsMenu = statusItemOpensItsMenu(),
            // Unlike quit, this closes no window first: closing the first-run window is a choice.
            .terminate = [] { QCoreApplication::exit(ExitStatus::success); }};
    }

    /// Lets go what is still on its way out, for a moment at most.
    void stop() {
        constexpr std::chrono::seconds longestWait{1};
        TelemetryDeckClient::shared().appWillTerminate();
        TelemetryDeckClient::shared().waitForRequests(longestWait);
        processes.stop();
    }
};

void hearLaterStarts(InstanceServer& server, const QString& path) {
    QString problem;
    if (!path.isEmpty() && !server.listen(path, &problem))
        qCWarning(shellLog, "Later starts cannot reach this one: %ls", qUtf16Printable(problem));
}

} // namespace

int runPrompter(const PrompterStart& start) {
    if (const auto problem = prepareDisplay()) {
        reportError(*problem);
        return ExitStatus::failure;
    }
    QApplication::setApplicationName(u"Tessaline"_s);
    QApplication::setDesktopFileName(u"app.tessaline.Tessaline"_s);
    QApplication::setQuitOnLastWindowClosed(
        AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    QApplication::setQuitLockEnabled(false);
    QApplication application(start.argc, start.argv);
    QApplication::setWindowIcon(QIcon::fromTheme(u"app.tessaline.Tessaline"_s));
    applyDarkAppearance();

    Machine machine;
    AppDelegate delegate(machine.environment());
    const StopSignals stopSignals([&delegate] { delegate.quitApp(); });
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application,
                     [&delegate] { delegate.applicationWillTerminate(); });
    delegate.applicationDidFinishLaunching();
    if (!start.followed.isEmpty()) {
        delegate.followFile(start.followed, *start.text);
    } else if (start.text) {
        delegate.openText(*start.text);
    }

    RemoteCommands commands(delegate);
    InstanceServer server(machine.timers, [&commands](const QJsonObject& message) {
        return commands.carryOut(message);
    });
    hearLaterStarts(server, start.socketPath);
    const int status = QApplication::exec();
    machine.stop();
    return status;
}

} // namespace tessaline
