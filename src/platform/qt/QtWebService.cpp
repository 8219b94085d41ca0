#include "platform/qt/QtWebService.h"

#include "remote/web/HttpRequestReader.h"

#include <QHostAddress>
#include <QWebSocket>

#include <algorithm>
#include <utility>
#include <variant>
#include <vector>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::seconds sweepInterval{1};
constexpr int sweepsPerPing = 10;

QString reasonOf(const QTcpServer& server, const WebServer::Place& place) {
    switch (server.serverError()) {
    case QAbstractSocket::AddressInUseError:
        return u"another program has port %1"_s.arg(place.port);
    case QAbstractSocket::SocketAddressNotAvailableError:
        return u"this machine does not have the address %1 now"_s.arg(place.address);
    default:
        return server.errorString();
    }
}

void end(QWebSocket& socket) {
    socket.disconnect();
    socket.abort();
    socket.deleteLater(); // its own signal may be what brings us here
}

} // namespace

QtWebService::QtWebService(WebServer::Site& served)
    : site(served), webSockets(u"Tessaline"_s, QWebSocketServer::NonSecureMode) {
    server.setMaxPendingConnections(mostPerTurn);
    webSockets.setHandshakeTimeout(
        int(std::chrono::milliseconds(WebConnection::longestRequest).count()));
    taking.setSingleShot(true);
    sweeping.setInterval(sweepInterval);
    QObject::connect(&server, &QTcpServer::newConnection, &server, [this] {
        if (!taking.isActive()) taking.start(0);
    });
    QObject::connect(&taking, &QTimer::timeout, &server, [this] { takeConnections(); });
    QObject::connect(&webSockets, &QWebSocketServer::newConnection, &server,
                     [this] { takePages(); });
    QObject::connect(&sweeping, &QTimer::timeout, &server, [this] { sweep(); });
}

QtWebService::~QtWebService() {
    server.close();
    for (const auto& [client, page] : pages)
        end(*page.socket);
}

bool QtWebService::listen(const WebServer::Place& place, QString* problem) {
    const QHostAddress address(place.address);
    // A page must know by which address it is asked for.
    if (address.isNull() || address == QHostAddress::AnyIPv4 || address == QHostAddress::AnyIPv6) {
        *problem = u"'%1' is not an address of this machine"_s.arg(place.address);
        return false;
    }
    if (server.listen(address, place.port)) return true;
    *problem = reasonOf(server, place);
    return false;
}

void QtWebService::takeConnections() {
    const Time now = std::chrono::steady_clock::now();
    if (now - turnBegan >= turn) {
        turnBegan = now;
        taken = 0;
    }
    for (; taken < mostPerTurn; ++taken) {
        QTcpSocket* socket = server.nextPendingConnection();
        if (!socket) return;
        take(socket);
    }
    taking.start(turn);
}

void QtWebService::take(QTcpSocket* socket) {
    if (connections.size() == mostConnections) connections.pop_front();
    WebConnection& connection = *connections.emplace_back(std::make_unique<WebConnection>(socket));
    connection.watch(
        {[this, &connection] { read(connection); }, [this, &connection] { remove(connection); }});
    if (!sweeping.isActive()) sweeping.start();
    if (connection.isBroken()) return remove(connection);
    read(connection);
}

void QtWebService::read(WebConnection& connection) {
    if (connection.isAnswered()) return;
    const HttpReading reading = httpRequestReader::read(connection.bytes());
    if (std::holds_alternative<UnfinishedRequest>(reading)) return;
    const auto* request = std::get_if<HttpRequest>(&reading);
    if (!request) return remove(connection);
    const WebAnswer answer = site.answer(*request, connection.peerAddress());
    if (const auto* reply = std::get_if<HttpReply>(&answer)) return connection.answer(*reply);
    QTcpSocket* socket = connection.release();
    remove(connection);
    webSockets.handleConnection(socket);
}

void QtWebService::remove(WebConnection& connection) {
    std::erase_if(connections, [&](const auto& each) { return each.get() == &connection; });
}

void QtWebService::takePages() {
    while (QWebSocket* socket = webSockets.nextPendingConnection())
        take(socket);
}

void QtWebService::take(QWebSocket* socket) {
    const WebServer::Client client = ++lastClient;
    socket->setParent(nullptr);
    socket->setMaxAllowedIncomingFrameSize(longestMessage);
    socket->setMaxAllowedIncomingMessageSize(longestMessage);
    pages[client] = {socket, std::chrono::steady_clock::now()};
    QObject::connect(socket, &QWebSocket::textMessageReceived, socket,
                     [this, client](const QString& message) {
                         heard(client);
                         site.told(client, message);
                     });
    QObject::connect(socket, &QWebSocket::binaryMessageReceived, socket,
                     [this, client] { drop(client); });
    QObject::connect(socket, &QWebSocket::pong, socket, [this, client] { heard(client); });
    QObject::connect(socket, &QWebSocket::disconnected, socket, [this, client] { drop(client); });
    if (!sweeping.isActive()) sweeping.start();
    site.joined(client);
}

void QtWebService::heard(WebServer::Client client) {
    const auto page = pages.find(client);
    if (page != pages.end()) page->second.heard = std::chrono::steady_clock::now();
}

void QtWebService::tell(WebServer::Client client, const QString& message) {
    const auto page = pages.find(client);
    if (page == pages.end()) return;
    if (page->second.socket->bytesToWrite() > mostUnread) return drop(client);
    page->second.socket->sendTextMessage(message);
}

void QtWebService::drop(WebServer::Client client) {
    const auto page = pages.find(client);
    if (page == pages.end()) return;
    QWebSocket& socket = *page->second.socket;
    pages.erase(page);
    end(socket);
    site.left(client);
}

void QtWebService::sweep() {
    const Time now = std::chrono::steady_clock::now();
    std::erase_if(connections, [now](const auto& each) { return each->isLate(now); });
    sweepPages(now);
    if (connections.empty() && pages.empty()) sweeping.stop();
}

void QtWebService::sweepPages(Time now) {
    const bool asks = ++sweeps % sweepsPerPing == 0;
    std::vector<WebServer::Client> lost;
    for (const auto& [client, page] : pages) {
        const bool isSlow = page.socket->bytesToWrite() > mostUnread;
        if (isSlow || now - page.heard >= longestSilence) {
            lost.push_back(client);
        } else if (asks) {
            page.socket->ping();
        }
    }
    for (const WebServer::Client client : lost)
        drop(client);
}

} // namespace tessaline
