#include "analytics/TelemetryDeckClient.h"

#include "analytics/TelemetryStage.h"
#include "support/CaseName.h"
#include "support/FakeHttpPoster.h"
#include "support/PrintQt.h"
#include "support/RecordedLog.h"

#include <QCryptographicHash>
#include <QRegularExpression>

#include <gmock/gmock.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class TelemetryDeckClientTest : public testing::Test {
protected:
    /// The first signal that the client would send.
    QJsonObject firstSignal(TelemetryDeckClient& client) {
        client.flush();
        return QJsonDocument::fromJson(network.requests.back().body).array().first().toObject();
    }

    QStringList typesOfRequest(std::size_t index) const {
        return typesIn(network.requests.at(index).body);
    }

    static QStringList logged(const QString& line) {
        return {u"app.tessaline.Tessaline.telemetry: [TelemetryDeck] "_s + line};
    }

    TelemetryStage stage;
    FakeHttpPoster network;
};

TEST_F(TelemetryDeckClientTest, PostsToTheAddress) {
    TelemetryOptions options;
    options.baseURL = QUrl(u"http://localhost/v2/"_s);
    const auto client = stage.makeClient(network, options);
    client->signal(u"a"_s, {});
    client->flush();
    ASSERT_EQ(network.requests.size(), 1U);
    EXPECT_EQ(network.requests[0].address, options.baseURL);
}

TEST_F(TelemetryDeckClientTest, SendsExactlyTheseBytes) {
    stage.bundle.values = {{u"CFBundleShortVersionString"_s, u"1.2"_s},
                           {u"CFBundleVersion"_s, u"345"_s}};
    stage.defaults.values = {{u"app.example.Program.telemetry.userId"_s, u"abc"_s}};
    const auto client = stage.makeClient(network);
    client->setAppID(u"an-id"_s);
    client->signal(u"content_loaded"_s, {{u"word_count"_s, u"120"_s}});
    client->flush();
    const QByteArray& body = network.requests.at(0).body;
    const QString session =
        QJsonDocument::fromJson(body).array().first()[u"sessionID"_s].toString();
    const QByteArray expected =
        R"([{"receivedAt":"2026-11-20T21:44:30Z","appID":"an-id",)"
        R"("clientUser":"ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad",)"
        R"("sessionID":")" +
        session.toUtf8() +
        R"(","type":"content_loaded","payload":{)"
        R"("TelemetryDeck.AppInfo.buildNumber":"345","TelemetryDeck.AppInfo.version":"1.2",)"
        R"("TelemetryDeck.Device.operatingSystem":"Linux","TelemetryDeck.Device.platform":"Linux",)"
        R"("TelemetryDeck.Device.systemMajorVersion":"12",)"
        R"("TelemetryDeck.Device.systemVersion":"12.4.0",)"
        R"("TelemetryDeck.RunContext.isAppStore":"false","TelemetryDeck.RunContext.isDebug":"false",)"
        R"("TelemetryDeck.RunContext.isTestFlight":"false",)"
        R"("TelemetryDeck.SDK.name":"TessalineCustomClient","TelemetryDeck.SDK.version":"1.0.0",)"
        R"("word_count":"120"},"isTestMode":"false"}])";
    EXPECT_EQ(body, expected);
}

TEST_F(TelemetryDeckClientTest, SaysUnknownForVersionsThatTheBundleDoesNotTell) {
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    const QJsonObject payload = firstSignal(*client)[u"payload"_s].toObject();
    EXPECT_EQ(payload[u"TelemetryDeck.AppInfo.version"_s], u"unknown"_s);
    EXPECT_EQ(payload[u"TelemetryDeck.AppInfo.buildNumber"_s], u"unknown"_s);
}

TEST_F(TelemetryDeckClientTest, MarksTestSignals) {
    TelemetryOptions options;
    options.testMode = true;
    const auto client = stage.makeClient(network, options);
    client->signal(u"a"_s, {});
    const QJsonObject signal = firstSignal(*client);
    EXPECT_EQ(signal[u"isTestMode"_s], u"true"_s);
    EXPECT_EQ(signal[u"payload"_s][u"TelemetryDeck.RunContext.isDebug"_s], u"true"_s);
}

TEST_F(TelemetryDeckClientTest, LetsParametersReplaceTheDefaults) {
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {{u"TelemetryDeck.Device.platform"_s, u"mine"_s}});
    EXPECT_EQ(firstSignal(*client)[u"payload"_s][u"TelemetryDeck.Device.platform"_s], u"mine"_s);
}

TEST_F(TelemetryDeckClientTest, NamesTheApplicationThatIsSetAtTheMoment) {
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    client->setAppID(u"an-id"_s);
    client->signal(u"b"_s, {});
    client->flush();
    const QJsonArray batch = QJsonDocument::fromJson(network.requests[0].body).array();
    EXPECT_EQ(batch[0][u"appID"_s], QString());
    EXPECT_EQ(batch[1][u"appID"_s], u"an-id"_s);
}

TEST_F(TelemetryDeckClientTest, TellsWhenASignalWasReceivedAndNotWhenItWasSent) {
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    stage.now = stage.now.addDays(1);
    EXPECT_EQ(firstSignal(*client)[u"receivedAt"_s], u"2026-11-20T21:44:30Z"_s);
}

TEST_F(TelemetryDeckClientTest, KeepsTheUserAndChangesTheSessionFromRunToRun) {
    QStringList users;
    QStringList sessions;
    for (int run = 0; run < 2; ++run) {
        const auto client = stage.makeClient(network);
        client->signal(u"a"_s, {});
        const QJsonObject signal = firstSignal(*client);
        users += signal[u"clientUser"_s].toString();
        sessions += signal[u"sessionID"_s].toString();
    }
    EXPECT_EQ(users[0], users[1]);
    EXPECT_NE(sessions[0], sessions[1]);
    const QRegularExpression uuid(
        u"^[0-9A-F]{8}-[0-9A-F]{4}-4[0-9A-F]{3}-[89AB][0-9A-F]{3}-[0-9A-F]{12}$"_s);
    EXPECT_TRUE(uuid.match(sessions[0]).hasMatch()) << sessions[0].toStdString();

    const QString stored = stage.defaults.values.at(u"app.example.Program.telemetry.userId"_s);
    EXPECT_TRUE(uuid.match(stored).hasMatch()) << stored.toStdString();
    EXPECT_EQ(users[0].toLatin1(),
              QCryptographicHash::hash(stored.toUtf8(), QCryptographicHash::Sha256).toHex());
}

TEST_F(TelemetryDeckClientTest, HasANewUserWhenTheIdentifierWasDeleted) {
    QStringList users;
    for (int run = 0; run < 2; ++run) {
        stage.defaults.values.clear();
        const auto client = stage.makeClient(network);
        client->signal(u"a"_s, {});
        users += firstSignal(*client)[u"clientUser"_s].toString();
    }
    EXPECT_NE(users[0], users[1]);
}

TEST_F(TelemetryDeckClientTest, StoresTheUserUnderItsOwnNameInAnUnbundledProgram) {
    stage.bundle.bundleIdentifier.reset();
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    EXPECT_EQ(stage.defaults.values.count(u"app.tessaline.Tessaline.telemetry.userId"_s), 1U);
}

TEST_F(TelemetryDeckClientTest, AsksForNoIdentifierBeforeTheFirstSignal) {
    const auto client = stage.makeClient(network);
    client->flush();
    EXPECT_TRUE(stage.defaults.values.empty());
}

TEST_F(TelemetryDeckClientTest, PostsTheSignalsOfTenSecondsTogether) {
    const auto client = stage.makeClient(network);
    EXPECT_EQ(stage.timers.liveIntervals(), std::vector<double>{10.0});
    client->signal(u"a"_s, {});
    stage.timers.advance(9.9);
    client->signal(u"b"_s, {});
    EXPECT_TRUE(network.requests.empty());
    stage.timers.advance(0.1);
    ASSERT_EQ(network.requests.size(), 1U);
    EXPECT_EQ(typesOfRequest(0), (QStringList{u"a"_s, u"b"_s}));
}

TEST_F(TelemetryDeckClientTest, PostsNothingWithoutSignals) {
    const auto client = stage.makeClient(network);
    client->flush();
    stage.timers.advance(60);
    client->appWillTerminate();
    EXPECT_TRUE(network.requests.empty());
    EXPECT_TRUE(client->waitForRequests(std::chrono::milliseconds(0)));
}

TEST_F(TelemetryDeckClientTest, SendsASignalOnceWhenItIsAccepted) {
    const RecordedLog log;
    for (const int status : {200, 204, 299}) {
        const auto client = stage.makeClient(network);
        client->signal(u"a"_s, {});
        client->flush();
        const std::size_t requests = network.requests.size();
        network.answer(status);
        stage.timers.advance(30);
        EXPECT_EQ(network.requests.size(), requests) << status;
    }
    EXPECT_EQ(log.entries(), QStringList());
}

class TelemetryDeckClientRefused : public TelemetryDeckClientTest,
                                   public testing::WithParamInterface<int> {};

TEST_P(TelemetryDeckClientRefused, DropsTheBatchAndGoesOn) {
    const RecordedLog log;
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    client->flush();
    client->signal(u"b"_s, {});
    network.answer(GetParam());
    EXPECT_EQ(log.entries(), logged(u"Server returned %1"_s.arg(GetParam())));
    client->flush();
    EXPECT_EQ(typesOfRequest(1), QStringList{u"b"_s});
}

INSTANTIATE_TEST_SUITE_P(Statuses, TelemetryDeckClientRefused,
                         testing::Values(199, 300, 302, 307, 400, 404, 429, 500, 503), byValue);

TEST_F(TelemetryDeckClientTest, SendsAFailedBatchAgainAheadOfNewerSignals) {
    const RecordedLog log;
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    client->signal(u"b"_s, {});
    client->flush();
    client->signal(u"c"_s, {});
    network.fail();
    EXPECT_EQ(log.entries(), logged(u"Send failed: Connection refused"_s));
    EXPECT_EQ(network.requests.size(), 1U);
    stage.timers.advance(10);
    EXPECT_EQ(typesOfRequest(1), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
    network.fail();
    stage.timers.advance(10);
    EXPECT_EQ(typesOfRequest(2), (QStringList{u"a"_s, u"b"_s, u"c"_s}));
}

TEST_F(TelemetryDeckClientTest, KeepsEverySignalHoweverOftenSendingFails) {
    const RecordedLog log;
    const auto client = stage.makeClient(network);
    QStringList all;
    for (int number = 0; number < 500; ++number) {
        all += QString::number(number);
        client->signal(all.last(), {});
        stage.timers.advance(10);
        network.fail();
    }
    EXPECT_EQ(network.requests.size(), 500U);
    stage.timers.advance(10);
    network.answer(200);
    EXPECT_EQ(typesOfRequest(500), all);
    stage.timers.advance(10);
    EXPECT_EQ(network.requests.size(), 501U);
}

TEST_F(TelemetryDeckClientTest, HasOneBatchUnderWayAtATime) {
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    client->flush();
    client->signal(u"b"_s, {});
    stage.timers.advance(30);
    EXPECT_EQ(network.requests.size(), 1U);
    network.answer(200);
    ASSERT_EQ(network.requests.size(), 2U);
    EXPECT_EQ(typesOfRequest(1), QStringList{u"b"_s});
    network.answer(200);
    EXPECT_EQ(network.requests.size(), 2U);
}

TEST_F(TelemetryDeckClientTest, KeepsTheOrderWhenABatchFailsWithAFlushWaiting) {
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    client->flush();
    client->signal(u"b"_s, {});
    client->flush();
    network.fail();
    ASSERT_EQ(network.requests.size(), 2U);
    EXPECT_EQ(typesOfRequest(1), (QStringList{u"a"_s, u"b"_s}));
    network.fail();
    EXPECT_EQ(network.requests.size(), 2U);
}

TEST_F(TelemetryDeckClientTest, GivesABatchAMinuteForItsAnswer) {
    const RecordedLog log;
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    client->flush();
    client->signal(u"b"_s, {});
    stage.timers.advance(59.9);
    EXPECT_EQ(network.requests.size(), 1U);
    EXPECT_EQ(network.pending(), 1U);
    stage.timers.advance(0.1);
    EXPECT_EQ(log.entries(), logged(u"Send failed: The server did not answer in time"_s));
    ASSERT_EQ(network.requests.size(), 2U);
    EXPECT_EQ(typesOfRequest(1), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_EQ(network.pending(), 1U) << "the first one was given up";
    network.answer(200);
    stage.timers.advance(120);
    EXPECT_EQ(network.requests.size(), 2U);
}

TEST_F(TelemetryDeckClientTest, SendsWhatIsLeftAtTerminationWhateverIsUnderWay) {
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    client->flush();
    client->signal(u"app_terminate"_s, {});
    client->appWillTerminate();
    ASSERT_EQ(network.requests.size(), 2U);
    EXPECT_EQ(typesOfRequest(1), QStringList{u"app_terminate"_s});
    network.answer(200);
    EXPECT_FALSE(client->waitForRequests(std::chrono::milliseconds(1)));
    network.answer(200);
    EXPECT_TRUE(client->waitForRequests(std::chrono::milliseconds(1)));
    EXPECT_EQ(network.requests.size(), 2U);
}

TEST_F(TelemetryDeckClientTest, SendsWhatIsLeftAtTermination) {
    const auto client = stage.makeClient(network);
    client->signal(u"app_terminate"_s, {});
    client->appWillTerminate();
    EXPECT_EQ(typesOfRequest(0), QStringList{u"app_terminate"_s});
}

TEST_F(TelemetryDeckClientTest, WaitsNoLongerThanItIsTold) {
    const auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    client->appWillTerminate();
    EXPECT_FALSE(client->waitForRequests(std::chrono::milliseconds(1)));
    network.answer(200);
    EXPECT_TRUE(client->waitForRequests(std::chrono::milliseconds(1)));
}

TEST_F(TelemetryDeckClientTest, AbandonsItsRequestWhenItEnds) {
    const RecordedLog log;
    auto client = stage.makeClient(network);
    client->signal(u"a"_s, {});
    client->flush();
    EXPECT_EQ(network.pending(), 1U);
    client.reset();
    EXPECT_EQ(network.pending(), 0U);
    EXPECT_EQ(log.entries(), QStringList());
}

TEST_F(TelemetryDeckClientTest, NeitherCollectsNorSendsWhereThatIsNotAllowed) {
    TelemetryOptions options;
    options.isAllowed = false;
    const auto client = stage.makeClient(network, options);
    client->signal(u"a"_s, {});
    client->flush();
    client->appWillTerminate();
    EXPECT_TRUE(network.requests.empty());
    EXPECT_TRUE(stage.defaults.values.empty());
    EXPECT_TRUE(stage.timers.liveIntervals().empty());
}

} // namespace
} // namespace tessaline
