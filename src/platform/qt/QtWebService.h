#pragma once

#include "platform/WebServer.h"
#include "platform/qt/WebConnection.h"

#include <QTcpServer>
#include <QTimer>
#include <QWebSocketServer>

#include <chrono>
#include <cstddef>
#include <list>
#include <map>
#include <memory>

class QWebSocket;

namespace tessaline {

/// What is served at one place. Strangers cost little, however many and however odd: there are few
/// connections at a time, each for a short while and with few bytes, and new ones are taken so
/// slowly that the window goes on painting. We read the requests ourselves, as Qt's HTTP server has
/// none of these limits, and hands web sockets out before anybody is asked.
class QtWebService final : public WebServer::Service {
public:
    /// That ask, or are being answered; one more, and the oldest is dropped.
    static constexpr std::size_t mostConnections = 64;
    /// So many new ones are taken in such a time.
    static constexpr int mostPerTurn = 8;
    static constexpr std::chrono::milliseconds turn{20};
    /// A web socket that has been silent for so long is dropped: its phone sleeps, or has gone.
    static constexpr std::chrono::seconds longestSilence{30};
    /// So are those that do not read what they are told.
    static constexpr qint64 mostUnread = qint64{256} << 10;
    static constexpr quint64 longestMessage = 4096; ///< bytes

    /// Borrows the site.
    explicit QtWebService(WebServer::Site& site);
    ~QtWebService() override;
    QtWebService(const QtWebService&) = delete;
    QtWebService& operator=(const QtWebService&) = delete;

    bool listen(const WebServer::Place& place, QString* problem);

    void tell(WebServer::Client client, const QString& message) override;
    void drop(WebServer::Client client) override;

private:
    using Time = std::chrono::steady_clock::time_point;

    struct Page {
        QWebSocket* socket;
        Time heard;
    };

    void takeConnections();
    void take(QTcpSocket* socket);
    void read(WebConnection& connection);
    void remove(WebConnection& connection);
    void takePages();
    void take(QWebSocket* socket);
    void heard(WebServer::Client client);
    void sweep();
    void sweepPages(Time now);

    WebServer::Site& site;
    QTcpServer server;
    QWebSocketServer webSockets;
    std::list<std::unique_ptr<WebConnection>> connections; ///< the oldest first
    std::map<WebServer::Client, Page> pages;
    WebServer::Client lastClient = 0;
    QTimer taking;
    Time turnBegan{};
    int taken = 0;   ///< in this turn
    QTimer sweeping; ///< while somebody is connected
    int sweeps = 0;
};

} // namespace tessaline
