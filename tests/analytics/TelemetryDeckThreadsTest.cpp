#include "analytics/TelemetryStage.h"
#include "support/FakeHttpPoster.h"
#include "support/PrintQt.h"

#include <QLoggingCategory>

#include <gtest/gtest.h>

#include <atomic>
#include <map>
#include <thread>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

/// A network that loses two batches of three, and keeps what is in those that arrive.
class LossyNetwork {
public:
    FakeHttpPoster network;
    QStringList arrived;

    void answerAll() {
        while (network.pending() > 0) {
            if (turn++ % 3 == 2) {
                arrived += typesIn(network.requests.back().body);
                network.answer(200);
            } else {
                network.fail();
            }
        }
    }

private:
    int turn = 0;
};

TEST(TelemetryDeckThreads, SendEverySignalOnceAndInOrderWhileFlushesFailAndSucceed) {
    constexpr int threadCount = 4;
    constexpr int signalsEach = 1000;
    QLoggingCategory::setFilterRules(u"app.tessaline.Tessaline.*=false"_s);
    TelemetryStage stage;
    LossyNetwork lossy;
    const auto client = stage.makeClient(lossy.network);

    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    std::atomic<int> running = threadCount;
    for (int thread = 0; thread < threadCount; ++thread) {
        threads.emplace_back([&client, &running, thread] {
            for (int signal = 0; signal < signalsEach; ++signal)
                client->signal(u"%1 %2"_s.arg(thread).arg(signal), {});
            --running;
        });
    }
    while (running > 0) {
        client->setAppID(u"an-id"_s);
        client->flush();
        client->flush();
        lossy.answerAll();
        std::this_thread::yield();
    }
    for (std::thread& thread : threads)
        thread.join();
    for (int attempt = 0; attempt < 3; ++attempt) {
        client->flush();
        lossy.answerAll();
    }
    QLoggingCategory::setFilterRules(QString());

    EXPECT_EQ(lossy.arrived.size(), threadCount * signalsEach);
    std::map<QString, int> next;
    for (const QString& type : lossy.arrived) {
        const QString thread = type.section(u' ', 0, 0);
        EXPECT_EQ(type.section(u' ', 1), QString::number(next[thread]++));
    }
    EXPECT_EQ(stage.defaults.values.size(), 1U);
}

} // namespace
} // namespace tessaline
