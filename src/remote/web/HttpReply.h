#pragma once

#include <QByteArray>

#include <utility>
#include <vector>

namespace tessaline {

/// What a browser is answered; the connection ends with it. A plain value; any thread.
struct HttpReply {
    int status = 200;
    std::vector<std::pair<QByteArray, QByteArray>> headers{}; ///< besides the length
    QByteArray body{};

    /// What goes out before the body.
    QByteArray head() const;
};

} // namespace tessaline
