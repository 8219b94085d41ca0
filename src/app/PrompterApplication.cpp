#include "app/PrompterApplication.h"

#include "app/AppDelegate.h"
#include "app/DarkAppearance.h"
#include "app/LoggingUsageRecorder.h"
#include "app/cli/Console.h"
#include "app/cli/ExitStatus.h"
#include "platform/DisplayLink.h"
#include "platform/SystemAdapters.h"
#include "platform/ThreadTaskRunner.h"
#include "platform/WindowTraits.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtPasteboard.h"
#include "platform/qt/QtScreens.h"
#include "platform/qt/QtTimerMaker.h"

#include <QApplication>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

int runPrompter(int argc, char** argv, const std::optional<QString>& text) {
    if (const auto problem = prepareDisplay()) {
        reportError(*problem);
        return ExitStatus::failure;
    }
    QApplication::setApplicationName(u"Tessaline"_s);
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication application(argc, argv);
    applyDarkAppearance();

    // In the order of need: whoever is destroyed first may still use those above.
    QtMainQueue mainQueue;
    ThreadTaskRunner renderTasks;
    ThreadTaskRunner fileTasks;
    QtTimerMaker timers;
    NotificationCenter notifications;
    QtPasteboard pasteboard;
    LoggingUsageRecorder recorder;
    const auto displayLinks = makeDisplayLinkMaker();
    const auto windowTraits = makeWindowTraits();
    QtScreens screens(notifications, mainQueue, identifyScreen);
    AppDelegate delegate(
        {.prompter = {mainQueue, renderTasks, timers, *displayLinks, screens, *windowTraits},
         .fileTasks = fileTasks,
         .pasteboard = pasteboard,
         .recorder = recorder,
         .notifications = notifications});
    delegate.applicationDidFinishLaunching(text);
    return QApplication::exec();
}

} // namespace tessaline
