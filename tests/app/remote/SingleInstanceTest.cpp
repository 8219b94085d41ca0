#include "app/remote/SingleInstance.h"

#include "app/remote/InstanceServer.h"
#include "support/FakeTimerMaker.h"

#include <QDir>
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
                return request;
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
    QString problem;
    std::optional<RemoteRequest> request = OpenRequest{u"/talk.md"_s};
    int composed = 0;
};

TEST_F(SingleInstanceTest, IsUsWhenNobodyElseRuns) {
    EXPECT_TRUE(isUs(join(std::chrono::milliseconds(0))));
    EXPECT_EQ(composed, 0);
}

TEST_F(SingleInstanceTest, TellsTheOneThatRuns) {
    const auto lock = InstanceLock::take(address.lockPath(), &problem);
    InstanceServer server(timers,
                          [](const RemoteRequest& heard, const InstanceServer::Reply& reply) {
                              reply(Refusal{std::get<OpenRequest>(heard).path});
                          });
    ASSERT_TRUE(server.listen(address.socketPath(), &problem));
    const auto outcome = joinBeside(std::chrono::seconds(10));
    ASSERT_TRUE(std::holds_alternative<RemoteAnswer>(outcome));
    EXPECT_EQ(std::get<RemoteAnswer>(outcome), RemoteAnswer(Refusal{u"/talk.md"_s}));
    EXPECT_EQ(composed, 1);
}

TEST_F(SingleInstanceTest, WaitsForTheOneThatIsJustStarting) {
    const auto lock = InstanceLock::take(address.lockPath(), &problem);
    auto outcome = std::async(std::launch::async, [&] { return join(std::chrono::seconds(10)); });
    QTest::qWait(50);
    InstanceServer server(timers, [](const RemoteRequest&, const InstanceServer::Reply& reply) {
        reply(PrompterStatus{});
    });
    ASSERT_TRUE(server.listen(address.socketPath(), &problem));
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return outcome.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
    EXPECT_TRUE(std::holds_alternative<RemoteAnswer>(outcome.get()));
}

TEST_F(SingleInstanceTest, TakesOverFromTheOneThatIsJustEnding) {
    auto lock = InstanceLock::take(address.lockPath(), &problem);
    auto outcome = std::async(std::launch::async, [&] { return join(std::chrono::seconds(10)); });
    QTest::qWait(50);
    lock.reset();
    EXPECT_TRUE(isUs(outcome.get()));
}

TEST_F(SingleInstanceTest, TellsALockThatCannotBeOpenedFromOneThatIsHeld) {
    ASSERT_TRUE(QDir().mkpath(address.lockPath()));
    const auto outcome = join(std::chrono::seconds(10));
    const auto* failure = std::get_if<SingleInstance::NoLock>(&outcome);
    ASSERT_TRUE(failure);
    EXPECT_EQ(failure->problem, u"cannot lock %1: Is a directory"_s.arg(address.lockPath()));
    EXPECT_EQ(composed, 0);
}

TEST_F(SingleInstanceTest, SendsNothingWithoutARequest) {
    const auto lock = InstanceLock::take(address.lockPath(), &problem);
    request.reset();
    const auto outcome = join(std::chrono::seconds(10));
    EXPECT_TRUE(std::holds_alternative<SingleInstance::NothingToAsk>(outcome));
    EXPECT_EQ(composed, 1);
}

TEST_F(SingleInstanceTest, GivesUpOnOneThatDoesNotListen) {
    const auto lock = InstanceLock::take(address.lockPath(), &problem);
    const auto outcome = join(std::chrono::milliseconds(60));
    EXPECT_TRUE(std::holds_alternative<SingleInstance::Silence>(outcome));
    EXPECT_EQ(composed, 1);
}

TEST_F(SingleInstanceTest, GivesUpOnOneThatDoesNotAnswer) {
    const auto lock = InstanceLock::take(address.lockPath(), &problem);
    QLocalServer hangs;
    ASSERT_TRUE(hangs.listen(address.socketPath()));
    const auto outcome = join(std::chrono::milliseconds(60));
    EXPECT_TRUE(std::holds_alternative<SingleInstance::Silence>(outcome));
}

TEST_F(SingleInstanceTest, GivesUpOnOneThatIsTooBusyToListen) {
    const auto lock = InstanceLock::take(address.lockPath(), &problem);
    QLocalServer hangs;
    hangs.setListenBacklogSize(0);
    ASSERT_TRUE(hangs.listen(address.socketPath()));
    // Nobody takes the first one out of the queue, so that there is no room for a second one.
    join(std::chrono::milliseconds(0));
    const auto outcome = join(std::chrono::milliseconds(60));
    EXPECT_TRUE(std::holds_alternative<SingleInstance::Silence>(outcome));
}

TEST_F(SingleInstanceTest, GivesUpOnOneThatAnswersWithGarbage) {
    const auto lock = InstanceLock::take(address.lockPath(), &problem);
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
