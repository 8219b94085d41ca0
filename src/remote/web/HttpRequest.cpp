#include "remote/web/HttpRequest.h"

#include <QList>

#include <algorithm>

namespace tessaline {

QByteArray HttpRequest::header(QByteArrayView name) const {
    const auto found = headers.find(name.toByteArray());
    return found == headers.end() ? QByteArray() : found->second;
}

bool HttpRequest::wantsWebSocket() const {
    const QList<QByteArray> wishes = header("connection").toLower().split(',');
    const bool isUpgrade = std::any_of(wishes.begin(), wishes.end(), [](const QByteArray& wish) {
        return wish.trimmed() == "upgrade";
    });
    return method == Method::get && isUpgrade && header("upgrade").toLower() == "websocket";
}

QByteArray HttpRequest::cookie(QByteArrayView name) const {
    const QByteArray start = name.toByteArray() + '=';
    const QList<QByteArray> cookies = header("cookie").split(';');
    for (const QByteArray& each : cookies) {
        const QByteArray pair = each.trimmed();
        if (pair.startsWith(start)) return pair.sliced(start.size());
    }
    return {};
}

} // namespace tessaline
