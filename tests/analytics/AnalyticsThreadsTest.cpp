#include "analytics/AnalyticsStage.h"
#include "analytics/EventHistory.h"
#include "platform/ThreadTaskRunner.h"
#include "support/PrintQt.h"

#include <QDir>
#include <QFileInfo>

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <map>
#include <memory>
#include <thread>
#include <utility>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// Counts failures instead of printing them.
class CountedFailures {
public:
    CountedFailures()
        : previous(
              qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString&) {
                  if (type == QtCriticalMsg) ++failures;
              })) {}
    ~CountedFailures() { qInstallMessageHandler(previous); }
    CountedFailures(const CountedFailures&) = delete;
    CountedFailures& operator=(const CountedFailures&) = delete;

    int count() const { return failures; }

private:
    static inline std::atomic<int> failures = 0;
    QtMessageHandler previous;
};

/// A recorder on real threads, and a place for its file that can be blocked.
class AnalyticsThreads : public testing::Test {
protected:
    void recordMany(int thread) {
        for (int event = 0; event < eventsEach; ++event) {
            recorder.record({.name = QString::number(thread),
                             .properties = {{u"event"_s, QString::number(event)}}});
        }
    }

    /// Has the history written, with a file in the place of its folder or not, and waits for that.
    void flush(bool isBlocked) {
        if (isBlocked) {
            QDir(support).removeRecursively();
            putFile(support, "in the way");
        } else {
            QFile::remove(support);
        }
        recorder.flush();
        std::promise<void> done;
        historyTasks.run([&done] { done.set_value(); });
        done.get_future().wait();
    }

    static ThreadTaskRunner& runOnThreads(Platform& platform) {
        auto runner = std::make_unique<ThreadTaskRunner>();
        ThreadTaskRunner& made = *runner;
        platform.historyTasks = std::move(runner);
        return made;
    }

    static constexpr int threadCount = 4;
    static constexpr int eventsEach = 2000;

    CountedFailures failures;
    AnalyticsStage stage;
    QString support = QFileInfo(stage.path).path();
    std::atomic<int> sent = 0;
    ThreadTaskRunner& historyTasks = runOnThreads(stage.platform);
    Analytics recorder{{.platform = stage.platform,
                        .environment = stage.environment,
                        .signal = [this](const QString&, const Analytics::Properties&) { ++sent; },
                        .historyPath = stage.path}};
};

TEST_F(AnalyticsThreads, RecordEveryEventOnceAndInOrderWhileFlushesFailAndSucceed) {
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    std::atomic<int> running = threadCount;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([this, &running, thread] {
            recordMany(thread);
            --running;
        });
    }
    for (bool isBlocked = true; running > 0; isBlocked = !isBlocked)
        flush(isBlocked);
    for (std::thread& thread : threads)
        thread.join();
    flush(true);
    EXPECT_GT(failures.count(), 0);
    QFile::remove(support);
    recorder.trackAppTerminate();

    EXPECT_EQ(sent, threadCount * eventsEach + 1);
    std::map<QString, int> next;
    for (const AnalyticsEvent& event : eventsIn(stage.path)) {
        if (event.name == u"app_terminate"_s) continue;
        EXPECT_EQ(event.properties[u"event"_s], QString::number(next[event.name]++));
    }
    ASSERT_EQ(next.size(), std::size_t{threadCount});
    for (const auto& [thread, count] : next)
        EXPECT_EQ(count, eventsEach) << thread.toStdString();
}

} // namespace
} // namespace tessaline
