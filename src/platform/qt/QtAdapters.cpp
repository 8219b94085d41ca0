#include "platform/qt/QtAdapters.h"

#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/ThreadTaskRunner.h"
#include "platform/qt/QtHttpPoster.h"
#include "platform/qt/QtMainQueue.h"
#include "platform/qt/QtProcessRunner.h"
#include "platform/qt/QtTimerMaker.h"
#include "platform/qt/QtUrlOpener.h"
#include "platform/qt/QtUserDefaults.h"
#include "platform/qt/QtWebServer.h"

namespace tessaline {

void addQtAdapters(Platform& platform) {
    platform.mainQueue = std::make_unique<QtMainQueue>();
    platform.timers = std::make_unique<QtTimerMaker>();
    platform.notifications = std::make_unique<NotificationCenter>();
    platform.processes = std::make_unique<QtProcessRunner>();
    platform.urlOpener = std::make_unique<QtUrlOpener>();
    platform.defaults = std::make_unique<QtUserDefaults>();
    platform.http = std::make_unique<QtHttpPoster>();
    platform.web = std::make_unique<QtWebServer>();
    for (auto* tasks : {&platform.renderTasks, &platform.fileTasks, &platform.scriptTasks,
                        &platform.queryTasks, &platform.pasteTasks, &platform.historyTasks})
        *tasks = std::make_unique<ThreadTaskRunner>();
}

} // namespace tessaline
