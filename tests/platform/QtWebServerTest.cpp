#include "platform/qt/QtWebServer.h"
#include "platform/qt/QtWebService.h"
#include "remote/web/HttpRequestReader.h"
#include "support/WaitUntil.h"

#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>
#include <QWebSocket>
#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// Answers each request with its path, or with a long text, and lets every web socket in.
class EchoSite final : public WebServer::Site {
public:
    WebAnswer answer(const HttpRequest& request, const QByteArray& address) override {
        ++asked;
        lastAddress = address;
        if (request.wantsWebSocket()) return WebSocketPass{};
        return HttpReply{.body = request.path == "/long" ? longText : request.path};
    }
    void joined(WebServer::Client client) override { clients.push_back(client); }
    void told(WebServer::Client, const QString& message) override { messages.push_back(message); }
    void left(WebServer::Client client) override { std::erase(clients, client); }

    static inline const QByteArray longText = QByteArray(3 << 20, 'x') + "end";
    int asked = 0;
    QByteArray lastAddress;
    std::vector<WebServer::Client> clients;
    std::vector<QString> messages;
};

class QtWebServerTest : public testing::Test {
protected:
    QtWebServerTest() {
        QTcpServer probe;
        probe.listen(QHostAddress::LocalHost);
        place = {u"127.0.0.1"_s, probe.serverPort()};
        probe.close();
        service = server.serve(place, site, &problem);
    }

    std::unique_ptr<QTcpSocket> connect() {
        auto socket = std::make_unique<QTcpSocket>();
        socket->connectToHost(QHostAddress::LocalHost, place.port);
        return socket;
    }

    /// What comes back until the connection ends.
    QByteArray said(const QByteArray& request) {
        const auto socket = connect();
        socket->write(request);
        EXPECT_TRUE(waitUntil([&] { return isOver(*socket); }));
        return socket->readAll();
    }

    static bool isOver(const QTcpSocket& socket) {
        return socket.state() == QAbstractSocket::UnconnectedState;
    }

    static QByteArray get(const QByteArray& path) {
        return "GET " + path + " HTTP/1.1\r\nHost: a\r\n\r\n";
    }

    std::unique_ptr<QWebSocket> join() {
        auto socket = std::make_unique<QWebSocket>();
        QObject::connect(socket.get(), &QWebSocket::textMessageReceived, socket.get(),
                         [this](const QString& message) { heard = message; });
        const std::size_t before = site.clients.size();
        socket->open(QUrl(u"ws://127.0.0.1:%1/socket"_s.arg(place.port)));
        EXPECT_TRUE(waitUntil([&] {
            return socket->state() == QAbstractSocket::ConnectedState &&
                   site.clients.size() > before;
        }));
        return socket;
    }

    bool isLeft() {
        return waitUntil([this] { return site.clients.empty(); });
    }

    EchoSite site;
    QtWebServer server;
    WebServer::Place place;
    QString problem;
    std::unique_ptr<WebServer::Service> service;
    QString heard;
};

} // namespace

TEST_F(QtWebServerTest, AnswersARequestAndEndsTheConnection) {
    EXPECT_EQ(said(get("/path")), HttpReply{.body = "/path"}.head() + "/path");
    EXPECT_EQ(site.lastAddress, "127.0.0.1");
}

TEST_F(QtWebServerTest, AnswersRequestsThatComeInPieces) {
    const auto socket = connect();
    socket->write("GET /pie");
    ASSERT_TRUE(waitUntil([&] { return socket->bytesToWrite() == 0; }));
    socket->write("ces HTTP/1.1\r\nHost: a\r\n\r\n");
    EXPECT_TRUE(waitUntil([&] { return isOver(*socket); }));
    EXPECT_TRUE(socket->readAll().endsWith("\r\n\r\n/pieces"));
}

TEST_F(QtWebServerTest, SendsLongRepliesWhole) {
    EXPECT_TRUE(said(get("/long")).endsWith("\r\n\r\n" + EchoSite::longText));
}

TEST_F(QtWebServerTest, SaysNothingToWhatIsNoRequest) {
    for (const QByteArray& wrong :
         {QByteArray("\x16\x03\x01\r\n\r\n"), QByteArray("GET / HTTP/1.1\r\n\r\nmore"),
          QByteArray(httpRequestReader::mostBytes * 4, 'x')})
        EXPECT_EQ(said(wrong), "");
    EXPECT_EQ(site.asked, 0);
    EXPECT_TRUE(said(get("/after")).endsWith("/after"));
}

TEST_F(QtWebServerTest, TellsWhyItCannotServe) {
    QString why;
    EXPECT_EQ(server.serve(place, site, &why), nullptr);
    EXPECT_EQ(why, u"another program has port %1"_s.arg(place.port));
    EXPECT_EQ(server.serve({u"192.0.2.1"_s, place.port}, site, &why), nullptr);
    EXPECT_EQ(why, u"this machine does not have the address 192.0.2.1 now"_s);
    for (const QString& address : {u"0.0.0.0"_s, u"::"_s, u"localhost"_s, u""_s}) {
        EXPECT_EQ(server.serve({address, place.port}, site, &why), nullptr);
        EXPECT_EQ(why, u"'%1' is not an address of this machine"_s.arg(address));
    }
}

TEST_F(QtWebServerTest, LetsGoOfItsPlaceAndOfEverybodyInTheEnd) {
    const auto page = join();
    const auto asking = connect();
    asking->write("GET");
    ASSERT_TRUE(waitUntil([&] { return asking->bytesToWrite() == 0; }));
    service.reset();
    EXPECT_TRUE(waitUntil(
        [&] { return isOver(*asking) && page->state() == QAbstractSocket::UnconnectedState; }));
    EXPECT_NE(server.serve(place, site, &problem), nullptr) << problem.toStdString();
}

TEST_F(QtWebServerTest, SpeaksWithItsPages) {
    const auto page = join();
    page->sendTextMessage(u"toggle"_s);
    EXPECT_TRUE(waitUntil([&] { return !site.messages.empty(); }));
    EXPECT_EQ(site.messages.front(), u"toggle"_s);
    service->tell(site.clients.front(), u"state"_s);
    EXPECT_TRUE(waitUntil([&] { return heard == u"state"_s; }));
    page->close();
    EXPECT_TRUE(isLeft());
}

TEST_F(QtWebServerTest, DropsThePagesThatItIsToldTo) {
    const auto page = join();
    service->drop(site.clients.front());
    EXPECT_TRUE(site.clients.empty());
    EXPECT_TRUE(waitUntil([&] { return page->state() == QAbstractSocket::UnconnectedState; }));
}

TEST_F(QtWebServerTest, DropsPagesThatSayWhatNoneWould) {
    const auto tooLong = join();
    tooLong->sendTextMessage(QString(int(QtWebService::longestMessage), u'x'));
    EXPECT_TRUE(waitUntil([&] { return site.messages.size() == 1; })) << "as long as may be";
    tooLong->sendTextMessage(QString(int(QtWebService::longestMessage) + 1, u'x'));
    EXPECT_TRUE(isLeft());
    EXPECT_EQ(site.messages.size(), 1u);

    const auto binary = join();
    binary->sendBinaryMessage("toggle");
    EXPECT_TRUE(isLeft());
}

TEST_F(QtWebServerTest, DropsPagesThatReadNothing) {
    QTcpSocket raw;
    raw.setReadBufferSize(1024);
    raw.connectToHost(QHostAddress::LocalHost, place.port);
    raw.write("GET /socket HTTP/1.1\r\nHost: a\r\nConnection: Upgrade\r\nUpgrade: websocket\r\n"
              "Sec-WebSocket-Version: 13\r\nSec-WebSocket-Key: AAAAAAAAAAAAAAAAAAAAAA==\r\n\r\n");
    ASSERT_TRUE(waitUntil([this] { return !site.clients.empty(); }));
    const QString message(16 << 10, u'x');
    // As much as the system itself keeps for a reader, and then some.
    for (int i = 0; i < 4096 && !site.clients.empty(); ++i) {
        service->tell(site.clients.front(), message);
        QCoreApplication::processEvents();
    }
    EXPECT_TRUE(site.clients.empty());
}

TEST_F(QtWebServerTest, HoldsNoMoreConnectionsThanItMay) {
    std::vector<std::unique_ptr<QTcpSocket>> strangers;
    constexpr int batches = 4;
    constexpr int strangersPerBatch = 30; // fewer than wait in the system for their turn
    for (int batch = 0; batch < batches; ++batch) {
        for (int i = 0; i < strangersPerBatch; ++i)
            strangers.push_back(connect());
        EXPECT_TRUE(said(get("/me")).endsWith("/me")) << "whose turn comes after theirs";
    }
    const auto held = [&strangers] {
        return std::count_if(strangers.begin(), strangers.end(),
                             [](const auto& stranger) { return !isOver(*stranger); });
    };
    EXPECT_TRUE(waitUntil([&] { return held() < qsizetype(QtWebService::mostConnections); }));
    EXPECT_GT(held(), 0) << "the latest may still have something to say";
}

TEST_F(QtWebServerTest, AnswersWhileAThousandStrangersSayNothing) {
    std::vector<std::unique_ptr<QTcpSocket>> strangers;
    for (int i = 0; i < 1000; ++i)
        strangers.push_back(connect());
    EXPECT_TRUE(said(get("/me")).endsWith("/me"));
}

TEST(WebConnection, GivesBrowsersAFewSecondsToAsk) {
    const auto now = std::chrono::steady_clock::now();
    WebConnection connection(new QTcpSocket);
    EXPECT_FALSE(connection.isLate(now + std::chrono::seconds(4)));
    EXPECT_TRUE(connection.isLate(now + std::chrono::seconds(6)));
}

} // namespace tessaline
