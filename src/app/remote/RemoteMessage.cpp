#include "app/remote/RemoteMessage.h"

#include <QJsonDocument>

namespace tessaline::remoteMessage {

QByteArray encode(const QJsonObject& message) {
    QByteArray line = QJsonDocument(message).toJson(QJsonDocument::Compact) + '\n';
    return line.size() <= mostBytes ? line : QByteArray();
}

std::optional<QJsonObject> decode(const QByteArray& line) {
    if (line.size() >= mostBytes) return std::nullopt;
    const auto document = QJsonDocument::fromJson(line);
    if (!document.isObject()) return std::nullopt;
    return document.object();
}

} // namespace tessaline::remoteMessage
