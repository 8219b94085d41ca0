#include "analytics/TelemetryDeckClient.h"

#include "analytics/HttpServer.h"
#include "analytics/TelemetryStage.h"
#include "platform/qt/QtHttpPoster.h"
#include "support/PrintQt.h"
#include "support/RecordedLog.h"
#include "support/WaitUntil.h"

#include <QTcpSocket>
#include <QTimer>

#include <gmock/gmock.h>

#include <functional>

namespace tessaline {
namespace {

using namespace std::chrono_literals;
using namespace Qt::Literals::StringLiterals;

/// Lets the server do something with the connection later.
void later(std::chrono::milliseconds delay, QTcpSocket& socket,
           const std::function<void(QTcpSocket&)>& action) {
    auto* const timer = new QTimer(&socket);
    timer->setSingleShot(true);
    timer->callOnTimeout([&socket, action] { action(socket); });
    timer->start(delay);
}

/// The client against a real server and with real sockets.
class TelemetryDeckServer : public testing::Test {
protected:
    std::unique_ptr<TelemetryDeckClient> makeClient() {
        TelemetryOptions options;
        options.baseURL = server.address();
        return stage.makeClient(network, options);
    }

    /// Sends a signal of this type and waits for what comes of it.
    static void send(TelemetryDeckClient& client, const QString& type) {
        client.signal(type, {});
        client.flush();
        EXPECT_TRUE(client.waitForRequests(30s));
    }

    QList<QStringList> batches() const {
        QList<QStringList> all;
        for (const HttpServer::Request& request : server.requests())
            all += typesIn(request.body);
        return all;
    }

    /// What was logged, without the telling of the category.
    QStringList logged() const {
        return QStringList(log.entries())
            .replaceInStrings(u"app.tessaline.Tessaline.telemetry: [TelemetryDeck] "_s, QString());
    }

    /// After a server that gave no answer: everything arrives once, in order, when it is well.
    void expectFailureAndRecovery(TelemetryDeckClient& client) {
        send(client, u"a"_s);
        EXPECT_THAT(logged(), testing::ElementsAre(testing::Truly([](const QString& line) {
                        return line.startsWith(u"Send failed: "_s) && line.size() > 13;
                    })));
        server.setResetsRequests(false);
        server.setAnswer(200);
        const qsizetype before = batches().size();
        send(client, u"b"_s);
        client.flush();
        EXPECT_EQ(batches().mid(before), (QList<QStringList>{{u"a"_s, u"b"_s}}));
    }

    const RecordedLog log;
    HttpServer server;
    TelemetryStage stage;
    QtHttpPoster network;
};

TEST_F(TelemetryDeckServer, ReceivesAPostOfJson) {
    const auto client = makeClient();
    client->signal(u"a"_s, {{u"text"_s, u"ä€😀\n\"\\"_s}});
    client->signal(u"b"_s, {});
    client->flush();
    ASSERT_TRUE(client->waitForRequests(30s));
    ASSERT_EQ(server.requests().size(), 1);
    const HttpServer::Request& request = server.requests().first();
    const QByteArray port = QByteArray::number(server.address().port());
    const QByteArray length = QByteArray::number(request.body.size());
    EXPECT_EQ(request.head, "POST /v2/ HTTP/1.1\r\n"
                            "Host: 127.0.0.1:" +
                                port +
                                "\r\n"
                                "User-Agent: Tessaline\r\n"
                                "Content-Type: application/json\r\n"
                                "Content-Length: " +
                                length + "\r\nConnection: close");
    EXPECT_EQ(typesIn(request.body), (QStringList{u"a"_s, u"b"_s}));
    EXPECT_TRUE(request.body.startsWith(R"([{"receivedAt":"2026-11-20T21:44:30Z","appID":"",)"));
    EXPECT_TRUE(request.body.endsWith(R"(},"isTestMode":"false"}])"));
    EXPECT_TRUE(request.body.contains(R"("text":"ä€😀\n\"\\")"));
    EXPECT_FALSE(request.body.contains("floatValue"));
}

TEST_F(TelemetryDeckServer, IsSentNothingAgainAfterItAccepted) {
    const auto client = makeClient();
    for (const int status : {200, 202, 204}) {
        server.setAnswer(status);
        send(*client, QString::number(status));
    }
    EXPECT_EQ(batches(), (QList<QStringList>{{u"200"_s}, {u"202"_s}, {u"204"_s}}));
    EXPECT_EQ(logged(), QStringList());
}

TEST_F(TelemetryDeckServer, IsSentNothingAgainThatItRefused) {
    const auto client = makeClient();
    QStringList lines;
    for (const int status : {400, 401, 404, 407, 413, 429, 500, 503}) {
        server.setAnswer(status);
        send(*client, QString::number(status));
        lines += u"Server returned %1"_s.arg(status);
    }
    server.setAnswer(200);
    send(*client, u"last"_s);
    EXPECT_EQ(batches().size(), 9);
    EXPECT_EQ(batches().last(), QStringList{u"last"_s});
    EXPECT_EQ(logged(), lines);
}

TEST_F(TelemetryDeckServer, IsNotFollowedElsewhere) {
    const auto client = makeClient();
    const QByteArray elsewhere = "Location: " + server.address().toEncoded() + "elsewhere\r\n";
    QStringList lines;
    for (const int status : {301, 302, 303, 307, 308}) {
        server.setAnswer(status, elsewhere);
        send(*client, QString::number(status));
        lines += u"Server returned %1"_s.arg(status);
    }
    EXPECT_EQ(batches().size(), 5);
    EXPECT_EQ(logged(), lines);
}

TEST_F(TelemetryDeckServer, ThatIsNotThereGetsTheSignalsWhenItIs) {
    const auto client = makeClient();
    server.stop();
    send(*client, u"a"_s);
    EXPECT_EQ(logged(), QStringList{u"Send failed: Connection refused"_s});
    ASSERT_TRUE(server.start());
    send(*client, u"b"_s);
    EXPECT_EQ(batches(), (QList<QStringList>{{u"a"_s, u"b"_s}}));
}

TEST_F(TelemetryDeckServer, ThatResetsRequestsGetsTheSignalsAgain) {
    const auto client = makeClient();
    server.setResetsRequests(true);
    for (int number = 0; number < 2000; ++number)
        client->signal(QString::number(number), {});
    client->flush();
    ASSERT_TRUE(client->waitForRequests(30s));
    EXPECT_THAT(logged(), testing::SizeIs(1));
    EXPECT_GE(server.connections(), 1);
    EXPECT_EQ(batches().size(), 0);

    server.setResetsRequests(false);
    send(*client, u"2000"_s);
    ASSERT_EQ(batches().size(), 1);
    QStringList expected;
    for (int number = 0; number <= 2000; ++number)
        expected += QString::number(number);
    EXPECT_EQ(batches().first(), expected);
}

TEST_F(TelemetryDeckServer, ThatClosesWithoutAnAnswerGetsTheSignalsAgain) {
    const auto client = makeClient();
    server.setAnswer([](QTcpSocket& socket) { socket.abort(); });
    expectFailureAndRecovery(*client);
}

TEST_F(TelemetryDeckServer, ThatClosesIsNotSentABatchAgainBeforeTheNextFlush) {
    const auto client = makeClient();
    send(*client, u"answered"_s);
    server.setAnswer([](QTcpSocket& socket) { socket.disconnectFromHost(); });
    send(*client, u"closed"_s);
    EXPECT_EQ(batches(), (QList<QStringList>{{u"answered"_s}, {u"closed"_s}}));
    EXPECT_EQ(server.connections(), 2);
    EXPECT_EQ(logged(), QStringList{u"Send failed: The remote host closed the connection"_s});
}

TEST_F(TelemetryDeckServer, ThatNeverAnswersGetsTheSignalsAgain) {
    const auto client = makeClient();
    server.setAnswer([](QTcpSocket&) {});
    client->signal(u"a"_s, {});
    client->flush();
    ASSERT_TRUE(waitUntil([this] { return server.requests().size() == 1; }));
    server.setAnswer(200);
    stage.timers.advance(60);
    EXPECT_TRUE(client->waitForRequests(30s));
    EXPECT_EQ(batches(), (QList<QStringList>{{u"a"_s}, {u"a"_s}}));
    EXPECT_EQ(logged(), QStringList{u"Send failed: The server did not answer in time"_s});
}

TEST_F(TelemetryDeckServer, IsBelievedAsSoonAsItsStatusIsThere) {
    const auto client = makeClient();
    for (const QByteArray begin : {"HTTP/1.1 200 ", "HTTP/1.0 204\r\nDate: ",
                                   "HTTP/1.1 200 OK\r\n\r\n", "HTTP/1.1 500 Oo"}) {
        server.setAnswer([begin](QTcpSocket& socket) { socket.write(begin); });
        send(*client, QString::fromLatin1(begin));
    }
    server.setAnswer(200);
    send(*client, u"last"_s);
    EXPECT_EQ(batches().size(), 5);
    EXPECT_EQ(batches().last(), QStringList{u"last"_s});
    EXPECT_EQ(logged(), QStringList{u"Server returned 500"_s});
}

TEST_F(TelemetryDeckServer, MayTrickle) {
    const auto client = makeClient();
    const auto trickle = [](const QByteArray& bytes) {
        return [bytes](QTcpSocket& socket) {
            auto* const timer = new QTimer(&socket);
            timer->callOnTimeout([&socket, bytes, next = 0]() mutable {
                socket.write(bytes.mid(next++ % bytes.size(), 1));
                socket.flush();
            });
            timer->start(1);
        };
    };
    server.setAnswer(trickle("HTTP/1.1 100 Continue\r\nA: b\r\n\r\nHTTP/1.1 200 OK\r\nX: yzxyz"));
    send(*client, u"accepted"_s);
    server.setAnswer(trickle("HTTP/1.1 503 Wait\r\nX: yzxyz"));
    send(*client, u"refused"_s);
    EXPECT_EQ(logged(), QStringList{u"Server returned 503"_s});
    server.setAnswer(trickle("HTTP over and over again"));
    send(*client, u"garbage"_s);
    EXPECT_EQ(logged().last(), u"Send failed: The answer is not HTTP"_s);
    EXPECT_EQ(batches(), (QList<QStringList>{{u"accepted"_s}, {u"refused"_s}, {u"garbage"_s}}));
}

TEST_F(TelemetryDeckServer, MustNotSayTooMuchBeforeItsAnswer) {
    const auto client = makeClient();
    server.setAnswer([](QTcpSocket& socket) {
        socket.write("HTTP/1.1 103 Early Hints\r\nLink: " + QByteArray(200'000, 'x'));
    });
    send(*client, u"a"_s);
    EXPECT_EQ(logged(), QStringList{u"Send failed: The answer does not come to its point"_s});
}

TEST_F(TelemetryDeckServer, ThatTalksGarbageGetsTheSignalsAgain) {
    const auto client = makeClient();
    server.setAnswer([](QTcpSocket& socket) {
        socket.write(QByteArray("\0\xff\x01 no HTTP\r\n\r\n", 14));
        socket.disconnectFromHost();
    });
    expectFailureAndRecovery(*client);
}

TEST_F(TelemetryDeckServer, IsBelievedWhenItsAnswerIsCutOffAfterTheStatus) {
    const auto client = makeClient();
    const auto cutOff = [this](const QByteArray& status) {
        server.setAnswer([status](QTcpSocket& socket) {
            socket.write("HTTP/1.1 " + status + " Status\r\nContent-Length: 100\r\n\r\nbegin");
            socket.flush();
            later(50ms, socket, [](QTcpSocket& late) { late.abort(); });
        });
    };
    cutOff("200");
    send(*client, u"accepted"_s);
    cutOff("500");
    send(*client, u"refused"_s);
    server.setAnswer(200);
    send(*client, u"last"_s);
    EXPECT_EQ(batches().last(), QStringList{u"last"_s});
    EXPECT_EQ(logged(), QStringList{u"Server returned 500"_s});
}

TEST_F(TelemetryDeckServer, MayBeSlow) {
    const auto client = makeClient();
    server.setAnswer([](QTcpSocket& socket) {
        later(150ms, socket, [](QTcpSocket& late) { late.write("HTTP/1.1 200 OK\r\n"); });
        later(300ms, socket, [](QTcpSocket& late) { late.write("Content-Length: 2\r\n\r\nok"); });
    });
    client->signal(u"a"_s, {});
    client->flush();
    client->signal(u"b"_s, {});
    stage.timers.advance(20);
    ASSERT_TRUE(client->waitForRequests(30s));
    EXPECT_EQ(batches(), (QList<QStringList>{{u"a"_s}, {u"b"_s}}));
    EXPECT_EQ(logged(), QStringList());
}

TEST_F(TelemetryDeckServer, MaySendALongAnswer) {
    const auto client = makeClient();
    server.setAnswer(200, {}, QByteArray(5'000'000, 'x'));
    send(*client, u"a"_s);
    EXPECT_EQ(batches(), (QList<QStringList>{{u"a"_s}}));
    EXPECT_EQ(logged(), QStringList());
}

TEST_F(TelemetryDeckServer, IsNotHeardOutWhenItsAnswerNeverEnds) {
    const auto client = makeClient();
    server.setAnswer([](QTcpSocket& socket) {
        socket.write("HTTP/1.1 200 OK\r\n\r\n");
        const auto talk = [&socket] { socket.write(QByteArray(100'000, 'x')); };
        QObject::connect(&socket, &QTcpSocket::bytesWritten, &socket, talk);
        talk();
    });
    send(*client, u"a"_s);
    server.setAnswer(200);
    send(*client, u"b"_s);
    EXPECT_EQ(batches(), (QList<QStringList>{{u"a"_s}, {u"b"_s}}));
    EXPECT_EQ(logged(), QStringList());
}

TEST_F(TelemetryDeckServer, LeavesNoCookies) {
    const auto client = makeClient();
    server.setAnswer(200, "Set-Cookie: who=you\r\n");
    send(*client, u"a"_s);
    send(*client, u"b"_s);
    ASSERT_EQ(server.requests().size(), 2);
    EXPECT_FALSE(server.requests().last().head.toLower().contains("cookie"));
}

TEST_F(TelemetryDeckServer, GetsTheLastSignalsBeforeTheProgramEnds) {
    const auto client = makeClient();
    client->signal(u"a"_s, {});
    client->flush();
    client->signal(u"app_terminate"_s, {});
    client->appWillTerminate();
    EXPECT_TRUE(client->waitForRequests(30s));
    EXPECT_THAT(batches(), testing::UnorderedElementsAre(QStringList{u"a"_s},
                                                         QStringList{u"app_terminate"_s}));
}

TEST_F(TelemetryDeckServer, DoesNotHoldTheProgramUpLongerThanAllowed) {
    const auto client = makeClient();
    server.setAnswer([](QTcpSocket&) {});
    client->signal(u"a"_s, {});
    client->appWillTerminate();
    EXPECT_FALSE(client->waitForRequests(50ms));
}

TEST_F(TelemetryDeckServer, WithAnAddressThatIsNoneCostsNothingButALine) {
    TelemetryOptions options;
    options.baseURL = QUrl(u"http://[nonsense"_s, QUrl::StrictMode);
    const auto client = stage.makeClient(network, options);
    send(*client, u"a"_s);
    EXPECT_THAT(logged(), testing::SizeIs(1));
}

} // namespace
} // namespace tessaline
