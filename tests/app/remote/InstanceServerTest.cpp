#include "app/remote/InstanceServer.h"

#include "app/remote/RemoteMessage.h"
#include "support/FakeTimerMaker.h"

#include <QFile>
#include <QLocalSocket>
#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>

#include <memory>
#include <sys/stat.h>
#include <vector>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

class InstanceServerTest : public testing::Test {
protected:
    InstanceServerTest() {
        QString problem;
        EXPECT_TRUE(server->listen(path, &problem)) << problem.toStdString();
    }

    std::unique_ptr<QLocalSocket> connectSilently() {
        auto client = std::make_unique<QLocalSocket>();
        client->connectToServer(path);
        EXPECT_TRUE(
            QTest::qWaitFor([&] { return client->state() == QLocalSocket::ConnectedState; }));
        return client;
    }

    static bool waitForEnd(QLocalSocket& client) {
        return QTest::qWaitFor([&] { return client.state() == QLocalSocket::UnconnectedState; });
    }

    /// What comes back for these bytes until the connection ends.
    QByteArray exchange(const QByteArray& bytes) {
        const auto client = connectSilently();
        client->write(bytes);
        EXPECT_TRUE(waitForEnd(*client));
        return client->readAll();
    }

    static QByteArray refusal() { return "{\"error\":\"this is no message\",\"ok\":false}\n"; }
    static QByteArray answerLine() { return "{\"error\":\"busy\",\"ok\":false}\n"; }

    QTemporaryDir folder;
    QString path = folder.filePath(u"socket"_s);
    FakeTimerMaker timers;
    const RemoteAnswer answer = Refusal{u"busy"_s};
    std::vector<RemoteRequest> heard;
    std::vector<InstanceServer::Reply> replies;
    bool repliesAtOnce = true;
    std::unique_ptr<InstanceServer> server = std::make_unique<InstanceServer>(
        timers, [this](const RemoteRequest& request, const InstanceServer::Reply& reply) {
            heard.push_back(request);
            replies.push_back(reply);
            if (repliesAtOnce) reply(answer);
        });
};

TEST_F(InstanceServerTest, AnswersAMessageWithOneLineAndCloses) {
    EXPECT_EQ(exchange("{\"command\":\"show\"}\n"), answerLine());
    EXPECT_THAT(heard, testing::ElementsAre(RemoteRequest(ShowRequest{})));
}

TEST_F(InstanceServerTest, TakesAMessageThatComesInPieces) {
    const auto client = connectSilently();
    for (const char byte : QByteArray("{\"command\":\"show\"}\n")) {
        client->putChar(byte);
        client->flush();
        QTest::qWait(0);
    }
    EXPECT_TRUE(waitForEnd(*client));
    EXPECT_EQ(heard.size(), 1u);
}

TEST_F(InstanceServerTest, TakesOneMessageFromAConnection) {
    EXPECT_EQ(exchange("{\"command\":\"show\"}\n{\"command\":\"open\"}\n"), answerLine());
    EXPECT_EQ(heard.size(), 1u);
}

TEST_F(InstanceServerTest, RefusesGarbage) {
    for (const QByteArray& garbage : {QByteArray("\n"), QByteArray("\0\xff\n", 3),
                                      QByteArray("[]\n"), QByteArray("GET / HTTP/1.1\r\n\r\n")})
        EXPECT_EQ(exchange(garbage), refusal());
    EXPECT_TRUE(heard.empty());
}

TEST_F(InstanceServerTest, RefusesWhatIsTooLongWithoutItsEnd) {
    EXPECT_EQ(exchange(QByteArray(remoteMessage::mostBytes, 'a')), refusal());
}

TEST_F(InstanceServerTest, ForgetsAClientThatVanishesInTheMiddle) {
    auto client = connectSilently();
    client->write("{\"comm");
    client->flush();
    client->abort();
    client.reset();
    EXPECT_TRUE(QTest::qWaitFor([&] { return timers.liveIntervals().empty(); }));
    EXPECT_EQ(exchange("{\"command\":\"show\"}\n"), answerLine());
}

TEST_F(InstanceServerTest, DropsAClientThatSaysNothingForTooLong) {
    const auto client = connectSilently();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !timers.liveIntervals().empty(); }));
    timers.advance(InstanceServer::secondsPerConnection - 0.1);
    QTest::qWait(0);
    EXPECT_EQ(client->state(), QLocalSocket::ConnectedState);
    timers.advance(0.2);
    EXPECT_TRUE(waitForEnd(*client));
    EXPECT_TRUE(timers.liveIntervals().empty());
}

TEST_F(InstanceServerTest, AnswersWhenItIsReadyHoweverLongThatTakes) {
    repliesAtOnce = false;
    const auto client = connectSilently();
    client->write("{\"command\":\"show\"}\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !replies.empty(); }));
    timers.advance(10 * InstanceServer::secondsPerConnection);
    QTest::qWait(0);
    EXPECT_EQ(client->state(), QLocalSocket::ConnectedState);
    replies.front()(answer);
    EXPECT_TRUE(waitForEnd(*client));
    EXPECT_EQ(client->readAll(), answerLine());
}

TEST_F(InstanceServerTest, TellsNobodyWhoIsGoneByThen) {
    repliesAtOnce = false;
    auto client = connectSilently();
    client->write("{\"command\":\"show\"}\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return !replies.empty(); }));
    client.reset();
    QTest::qWait(0);
    replies.front()(answer);
    const auto other = connectSilently();
    other->write("{\"command\":\"show\"}\n");
    ASSERT_TRUE(QTest::qWaitFor([&] { return replies.size() == 2; }));
    server.reset();
    replies.back()(answer);
    EXPECT_TRUE(waitForEnd(*other));
    EXPECT_EQ(other->readAll(), "");
}

TEST_F(InstanceServerTest, DropsTheOldestOfTooManyClients) {
    std::vector<std::unique_ptr<QLocalSocket>> silent;
    for (std::size_t i = 0; i < InstanceServer::mostConnections; ++i)
        silent.push_back(connectSilently());
    ASSERT_TRUE(QTest::qWaitFor(
        [&] { return timers.liveIntervals().size() == InstanceServer::mostConnections; }));
    EXPECT_EQ(exchange("{\"command\":\"show\"}\n"), answerLine());
    EXPECT_TRUE(waitForEnd(*silent.front()));
    EXPECT_EQ(silent.back()->state(), QLocalSocket::ConnectedState);
}

TEST_F(InstanceServerTest, TakesThePlaceOfASocketThatWasLeftBehind) {
    server.reset();
    QFile left(path);
    ASSERT_TRUE(left.open(QIODevice::WriteOnly));
    QString problem;
    InstanceServer next(timers, [](const RemoteRequest&, const InstanceServer::Reply&) {});
    EXPECT_TRUE(next.listen(path, &problem)) << problem.toStdString();
}

TEST_F(InstanceServerTest, SaysWhyItCannotListen) {
    QString problem;
    InstanceServer next(timers, [](const RemoteRequest&, const InstanceServer::Reply&) {});
    EXPECT_FALSE(next.listen(u"/nowhere/socket"_s, &problem));
    EXPECT_FALSE(problem.isEmpty());
}

TEST_F(InstanceServerTest, IsClosedToOthers) {
    struct stat status {};
    ASSERT_EQ(::stat(qPrintable(path), &status), 0);
    EXPECT_EQ(status.st_mode & 077, 0u);
}

TEST_F(InstanceServerTest, LeavesNothingBehindAndBreaksOpenConnections) {
    const auto client = connectSilently();
    ASSERT_TRUE(QTest::qWaitFor([&] { return !timers.liveIntervals().empty(); }));
    server.reset();
    EXPECT_TRUE(waitForEnd(*client));
    EXPECT_FALSE(QFile::exists(path));
}

} // namespace
} // namespace tessaline
