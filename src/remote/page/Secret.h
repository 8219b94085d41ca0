#pragma once

#include <QByteArray>
#include <QByteArrayView>

#include <functional>

namespace tessaline {

/// Makes so many bytes that nobody can foresee.
using RandomBytes = std::function<QByteArray(qsizetype count)>;

/// Those of the system.
QByteArray systemRandomBytes(qsizetype count);

/// A new secret of 128 bits, in letters and digits that addresses can have.
QByteArray newSecret(const RandomBytes& random);

/// Whether both are the same. How long it takes tells nothing but the length, which is no secret.
bool isSameSecret(QByteArrayView given, QByteArrayView kept);

} // namespace tessaline
