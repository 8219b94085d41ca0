#include "remote/page/PageOrigin.h"

namespace tessaline {

namespace {

QByteArray withPort(const QByteArray& host, quint16 port) {
    return host + ':' + QByteArray::number(port);
}

} // namespace

QByteArray PageOrigin::authority() const {
    return withPort(address.contains(':') ? '[' + address + ']' : address, port);
}

bool PageOrigin::isHost(QByteArrayView host) const {
    const bool isLocal = address == "127.0.0.1" || address == "::1";
    return host == authority() || (isLocal && host == withPort("localhost", port));
}

} // namespace tessaline
