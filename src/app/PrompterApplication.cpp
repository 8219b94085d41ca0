#include "app/PrompterApplication.h"

#include "analytics/Analytics.h"
#include "analytics/SharedInstance.h"
#include "analytics/TelemetryDeckClient.h"
#include "app/ActionKeys.h"
#include "app/AppDelegate.h"
#include "app/DarkAppearance.h"
#include "app/ProgramSurroundings.h"
#include "app/RemoteCommands.h"
#include "app/ScriptIntake.h"
#include "app/ShellLog.h"
#include "app/opening/ScriptOpening.h"
#include "app/remote/InstanceServer.h"
#include "cli/Console.h"
#include "cli/ExitStatus.h"
#include "platform/AbruptExit.h"
#include "platform/DisplaySession.h"
#include "platform/ExitDeadline.h"
#include "platform/Platform.h"
#include "platform/ProcessRunner.h"
#include "platform/qt/FileOpenRequests.h"
#include "platform/qt/QuitRequests.h"
#include "platform/qt/StopSignals.h"
#include "settings/SupportFolder.h"
#include "sources/notes/AppleNotesLibrary.h"
#include "sources/obsidian/InstalledObsidian.h"

#include <QApplication>
#include <QIcon>
#include <QSessionManager>
#include <QWidget>

#include <chrono>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// What is built directly upon the platform. In the order of need: whoever is destroyed first may
/// still use those above.
struct Foundation {
    const Platform& platform;
    InstalledObsidian obsidian{
        homeFolderPath(), VaultRegistry(homeFolderPath(), qEnvironmentVariable("XDG_CONFIG_HOME")),
        platform};
    AppleNotesLibrary notes{*platform.mainQueue, *platform.queryTasks, *platform.processes,
                            *platform.urlOpener};
    ProgramSurroundings surroundings{obsidian, platform};

    SharedInstance<TelemetryDeckClient> telemetry{[this] {
        return std::make_unique<TelemetryDeckClient>(TelemetryDeckClient::Setup{platform});
    }};
    SharedInstance<Analytics> analytics{[this] {
        TelemetryDeckClient& client = TelemetryDeckClient::shared();
        return std::make_unique<Analytics>(Analytics::Setup{
            platform, surroundings,
            [&client](const QString& name, const Analytics::Properties& parameters) {
                client.signal(name, parameters);
            }});
    }};

    Environment environment() {
        return {
            .platform = platform,
            .obsidian = obsidian,
            .notes = notes,
            .recorder = Analytics::shared(),
            .setTelemetryAppID =
                [](const QString& appID) { TelemetryDeckClient::shared().setAppID(appID); },
            // Unlike quit, this closes no window first: closing the first-run window is a choice.
            .terminate = [] { QCoreApplication::exit(ExitStatus::success); }};
    }

    /// Lets go what is still on its way out, for a moment at most.
    void stop() {
        constexpr std::chrono::seconds longestWait{1};
        TelemetryDeckClient::shared().appWillTerminate();
        TelemetryDeckClient::shared().waitForRequests(longestWait);
        platform.processes->stop();
    }
};

void listenToLaterStarts(InstanceServer& server, const QString& path) {
    QString problem;
    if (!path.isEmpty() && !server.listen(path, &problem))
        qCWarning(shellLog, "Later starts cannot reach this one: %ls", qUtf16Printable(problem));
}

/// Runs the event loop until the program is to end, and returns the exit status. Later starts are
/// heard for as long; one that comes afterwards waits for its turn to be the program.
int runUntilStopped(AppDelegate& delegate, const Platform& platform, const QString& socketPath) {
    RemoteCommands commands(delegate, *platform.scriptTasks, *platform.mainQueue);
    InstanceServer server(*platform.timers, [&commands](const RemoteRequest& request,
                                                        const InstanceServer::Reply& reply) {
        commands.carryOut(request, reply);
    });
    listenToLaterStarts(server, socketPath);
    const ActionKeys keys(delegate, commands, *platform.globalKeys);
    return QApplication::exec();
}

/// Has the session manager start the program as the user would. The toolkit's own command has an
/// option that our command line does not know.
void comeBackWithTheSession(QGuiApplication& application) {
    const auto setCommand = [](QSessionManager& session) {
        session.setRestartCommand({QCoreApplication::applicationFilePath()});
    };
    // They come while the session manager waits: a later answer would be none.
    QObject::connect(&application, &QGuiApplication::saveStateRequest, &application, setCommand,
                     Qt::DirectConnection);
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &application, setCommand,
                     Qt::DirectConnection);
}

/// The desktop's icon for the program where it is installed, else the one that comes along.
QIcon programIcon() {
    QIcon own;
    for (const int size : {16, 32, 64, 128})
        own.addFile(u":/icons/tessaline-%1.png"_s.arg(size));
    return QIcon::fromTheme(u"app.tessaline.Tessaline"_s, own);
}

void showFirst(const PrompterStart& start, AppDelegate& delegate) {
    if (start.path.isEmpty()) {
        if (start.text) delegate.scripts().open(*start.text);
    } else if (!start.text) {
        delegate.opening().open(start.path);
    } else if (start.follow) {
        delegate.opening().follow(start.path, *start.text);
    } else {
        delegate.opening().show(start.path, {start.text, {}});
    }
}

/// Unlike closing, hiding is no choice of the user's.
void hideEverything() {
    for (QWidget* window : QApplication::topLevelWidgets())
        window->hide();
}

} // namespace

int runPrompter(const PrompterStart& start) {
    if (const auto problem = prepareDisplay()) return reportFailure(*problem);
    QApplication::setApplicationName(u"Tessaline"_s);
    QApplication::setDesktopFileName(u"app.tessaline.Tessaline"_s);
    QApplication::setQuitOnLastWindowClosed(
        AppDelegate::applicationShouldTerminateAfterLastWindowClosed());
    QApplication::setQuitLockEnabled(false);
    QApplication application(start.argc, start.argv);
    QApplication::setWindowIcon(programIcon());
    const auto platform = makePlatform();
    applyDarkAppearance(*platform->look);

    Foundation foundation{*platform};
    AppDelegate delegate(foundation.environment());
    const StopSignals stopSignals([&delegate] { delegate.quitApp(); });
    QuitRequests quitRequests([&delegate] { delegate.quitApp(); });
    application.installEventFilter(&quitRequests);
    FileOpenRequests fileRequests(
        [&delegate](const QString& path) { delegate.opening().open(path); });
    application.installEventFilter(&fileRequests);
    comeBackWithTheSession(application);
    bool isRecorded = false;
    const auto recordTheEnd = [&delegate, &isRecorded] {
        if (std::exchange(isRecorded, true)) return;
        // The history may lie on a drive that does not answer.
        constexpr std::chrono::seconds longestEnd{3};
        setExitDeadline(longestEnd, ExitStatus::failure);
        delegate.applicationWillTerminate();
    };
    QObject::connect(&application, &QCoreApplication::aboutToQuit, &application, recordTheEnd);
    delegate.applicationDidFinishLaunching();
    showFirst(start, delegate);

    // The toolkit exits where it is when the display server goes away.
    const AbruptExit abruptExit(recordTheEnd);
    const int status = runUntilStopped(delegate, *platform, start.socketPath);
    hideEverything();
    foundation.stop();
    constexpr std::chrono::seconds longestTeardown{1};
    setExitDeadline(longestTeardown, status);
    return status;
}

} // namespace tessaline
