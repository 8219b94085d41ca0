#pragma once

#include "remote/web/HttpReply.h"

#include <QByteArray>
#include <QTcpSocket>

#include <chrono>
#include <functional>
#include <memory>

namespace tessaline {

/// A browser's connection until it is answered: one request and one reply.
class WebConnection {
public:
    using Time = std::chrono::steady_clock::time_point;

    static constexpr std::chrono::seconds longestRequest{5};
    static constexpr std::chrono::seconds longestReply{30};

    struct Handlers {
        std::function<void()> onBytes; ///< more have come
        std::function<void()> onEnd;   ///< it is broken, or the reply is on its way
    };

    /// Owns the socket.
    explicit WebConnection(QTcpSocket* opened);
    ~WebConnection();
    WebConnection(const WebConnection&) = delete;
    WebConnection& operator=(const WebConnection&) = delete;

    /// Calls them from now on; either may have happened before.
    void watch(const Handlers& handlers);

    bool isBroken() const;

    /// What has come so far, as much as any request has.
    QByteArray bytes() const;
    QByteArray peerAddress() const; ///< in digits

    /// Sends the reply, a piece at a time, and ends.
    void answer(const HttpReply& reply);
    bool isAnswered() const { return answered; }

    /// Lets the socket go, with all its bytes.
    QTcpSocket* release();

    /// Whether this has taken too long.
    bool isLate(Time now) const { return now >= deadline; }

private:
    struct DeleteLater {
        void operator()(QTcpSocket* ended) const;
    };

    void sendMore();

    std::unique_ptr<QTcpSocket, DeleteLater> socket;
    bool answered = false;
    QByteArray body;
    qsizetype sent = 0; ///< of the body
    Time deadline;
};

} // namespace tessaline
