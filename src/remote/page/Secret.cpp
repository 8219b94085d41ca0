#include "remote/page/Secret.h"

#include <QRandomGenerator>

#include <algorithm>

namespace tessaline {

QByteArray systemRandomBytes(qsizetype count) {
    QByteArray bytes(count, Qt::Uninitialized);
    std::generate(bytes.begin(), bytes.end(),
                  [] { return static_cast<char>(QRandomGenerator::system()->generate() & 0xff); });
    return bytes;
}

QByteArray newSecret(const RandomBytes& random) {
    constexpr qsizetype secretBytes = 16;
    return random(secretBytes)
        .toBase64(QByteArray::Base64UrlEncoding | QByteArray::OmitTrailingEquals);
}

bool isSameSecret(QByteArrayView given, QByteArrayView kept) {
    if (given.size() != kept.size() || kept.isEmpty()) return false;
    // Volatile, so that no compiler leaves the loop at the first difference.
    volatile unsigned char difference = 0;
    for (qsizetype i = 0; i < kept.size(); ++i) {
        difference =
            static_cast<unsigned char>(difference | static_cast<unsigned char>(given[i] ^ kept[i]));
    }
    return difference == 0;
}

} // namespace tessaline
