#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QtGlobal>

namespace tessaline {

/// Where the page is: an address, and the names under which browsers may ask for it. Any other name
/// is one that somebody else has led to this address. A plain value.
struct PageOrigin {
    /// "192.168.1.5:47865", or "[fd00::5]:47865"
    QByteArray authority() const;

    /// Whether a request's host is this one.
    bool isHost(QByteArrayView host) const;

    QByteArray address = "127.0.0.1"; ///< in digits
    quint16 port = 0;
};

} // namespace tessaline
