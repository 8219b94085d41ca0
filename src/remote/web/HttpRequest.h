#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <cstdint>
#include <map>

namespace tessaline {

/// What a browser asks for, read and found to be in order. A plain value; any thread.
struct HttpRequest {
    enum class Method : std::uint8_t { get, post };

    /// What a header says; empty where there is none. Names are in small letters.
    QByteArray header(QByteArrayView name) const;

    /// Whether the connection is to become a web socket.
    bool wantsWebSocket() const;

    /// The value of a cookie; empty where there is none.
    QByteArray cookie(QByteArrayView name) const;

    Method method = Method::get;
    QByteArray path; ///< begins with a slash; visible ASCII
    std::map<QByteArray, QByteArray> headers{};
    QByteArray body{};
};

} // namespace tessaline
