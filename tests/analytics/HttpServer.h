#pragma once

#include <QByteArray>
#include <QList>
#include <QTcpServer>
#include <QUrl>

#include <functional>

class QTcpSocket;

namespace tessaline {

/// A small HTTP server on the loopback interface. It reads requests with a "Content-Length" whole,
/// keeps them, and answers each as the test wants. Runs on the test's event loop.
class HttpServer {
public:
    struct Request {
        QByteArray head; ///< the request line and the headers
        QByteArray body;
    };

    /// Does with the connection what a server does once it has the whole request.
    using Answer = std::function<void(QTcpSocket&)>;

    HttpServer();

    /// Goes on answering this way. At first it answers with 200.
    void setAnswer(const Answer& next) { answer = next; }
    void setAnswer(int status, const QByteArray& headers = {}, const QByteArray& body = {});

    /// Closes connections, with a reset, as soon as something of a request arrives.
    void setResetsRequests(bool resets) { resetsRequests = resets; }

    /// Stops to listen, and starts again at the same port.
    void stop() { server.close(); }
    bool start() { return server.listen(QHostAddress::LocalHost, port); }

    QUrl address() const;
    const QList<Request>& requests() const { return received; }
    int connections() const { return connectionCount; }

private:
    void accept();
    void read(QTcpSocket& socket, QByteArray& text);

    QTcpServer server;
    quint16 port = 0;
    Answer answer;
    bool resetsRequests = false;
    QList<Request> received;
    int connectionCount = 0;
};

} // namespace tessaline
