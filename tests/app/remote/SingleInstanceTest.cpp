#include "app/remote/SingleInstance.h"

#include "app/remote/InstanceServer.h"
#include "support/FakeTimerMaker.h"

#include <QLocalServer>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

#include <future>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;
using Clock = InstanceClient::Clock;

class SingleInstanceTest : public testing::Test {
protected:
    SingleInstance::Outcome join(std::chrono::milliseconds patience) {
        return SingleInstance::join(
            address,
            [this] {
                ++composed;
                return QJsonObject{{u"command"_s, u"show"_s}};
            },
            Clock::now() + patience);
    }

    /// The same, while events are handled here.
    SingleInstance::Outcome joinBeside(std::chrono::milliseconds patience) {
        auto outcome = std::async(std::launch::async, [&] { return join(patience); });
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return outcome.wait_for(std::chrono::seconds(0)) == std::future_status::ready; },
            10'000));
        return outcome.get();
    }

    bool isUs(const SingleInstance::Outcome& outcome) {
        return std::holds_alternative<SingleInstance::IsUs>(outcome);
    }

    QTemporaryDir folder;
    InstanceAddress address{.folder = folder.path(), .display = u":7"_s};
    FakeTimerMaker timers;
    int composed = 0;
};

TEST_F(SingleInstanceTest, IsUsWhenNobodyElseRuns) {
    EXPECT_TRUE(isUs(join(std::chrono::milliseconds(0))));
    EXPECT_EQ(composed, 0);
}

TEST_F(SingleInstanceTest, TellsTheOneThatRuns) {
    const auto lock = InstanceLock::take(address.lockPath());
    InstanceServer server(timers, [](const QJsonObject& message) {
        return QJsonObject{{u"heard"_s, message.value(u"command"_s)}};
    });
    QString problem;
    ASSERT_TRUE(server.listen(address.socketPath(), &problem));
    const auto outcome = joinBeside(std::chrono::seconds(10));
    ASSERT_TRUE(std::holds_alternative<QJsonObject>(outcome));
    EXPECT_EQ(std::get<QJsonObject>(outcome).value(u"heard"_s), QJsonValue(u"show"_s));
    EXPECT_EQ(composed, 1);
}

TEST_F(SingleInstanceTest, WaitsForTheOneThatIsJustStarting) {
    const auto lock = InstanceLock::take(address.lockPath());
    auto outcome = std::async(std::launch::async, [&] { return join(std::chrono::seconds(10)); });
    QTest::qWait(50);
    InstanceServer server(timers, [](const QJsonObject&) { return QJsonObject(); });
    QString problem;
    ASSERT_TRUE(server.listen(address.socketPath(), &problem));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return outcome.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
    EXPECT_TRUE(std::holds_alternative<QJsonObject>(outcome.get()));
}

TEST_F(SingleInstanceTest, TakesOverFromTheOneThatIsJustEnding) {
    auto lock = InstanceLock::take(address.lockPath());
    auto outcome = std::async(std::launch::async, [&] { return join(std::chrono::seconds(10)); });
    QTest::qWait(50);
    lock.reset();
    EXPECT_TRUE(isUs(outcome.get()));
}

TEST_F(SingleInstanceTest, GivesUpOnOneThatDoesNotListen) {
    const auto lock = InstanceLock::take(address.lockPath());
    const auto outcome = join(std::chrono::milliseconds(60));
    EXPECT_TRUE(std::holds_alternative<SingleInstance::Silence>(outcome));
    EXPECT_EQ(composed, 1);
}

TEST_F(SingleInstanceTest, GivesUpOnOneThatDoesNotAnswer) {
    const auto lock = InstanceLock::take(address.lockPath());
    QLocalServer hangs;
    ASSERT_TRUE(hangs.listen(address.socketPath()));
    const auto outcome = join(std::chrono::milliseconds(60));
    EXPECT_TRUE(std::holds_alternative<SingleInstance::Silence>(outcome));
}

TEST_F(SingleInstanceTest, GivesUpOnOneThatIsTooBusyToListen) {
    const auto lock = InstanceLock::take(address.lockPath());
    QLocalServer hangs;
    hangs.setListenBacklogSize(0);
    ASSERT_TRUE(hangs.listen(address.socketPath()));
    // Nobody takes the first one out of the queue, so that there is no room for a second one.
    join(std::chrono::milliseconds(0));
    const auto outcome = join(std::chrono::milliseconds(60));
    EXPECT_TRUE(std::holds_alternative<SingleInstance::Silence>(outcome));
}

TEST_F(SingleInstanceTest, GivesUpOnOneThatAnswersWithGarbage) {
    const auto lock = InstanceLock::take(address.lockPath());
    QLocalServer confused;
    ASSERT_TRUE(confused.listen(address.socketPath()));
    QObject::connect(&confused, &QLocalServer::newConnection, &confused, [&] {
        QLocalSocket* client = confused.nextPendingConnection();
        client->write("what?\n");
        client->disconnectFromServer();
    });
    const auto outcome = joinBeside(std::chrono::milliseconds(200));
    EXPECT_TRUE(std::holds_alternative<SingleInstance::Silence>(outcome));
}

} // namespace
} // namespace tessaline
