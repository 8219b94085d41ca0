#include "settings/FilePath.h"

#include <QStringDecoder>

#include <algorithm>
#include <filesystem>
#include <system_error>

namespace tessaline {

namespace {

constexpr char16_t firstForeign = 0xDC80;
constexpr char16_t lastForeign = 0xDCFF;
constexpr char16_t foreignBase = 0xDC00;
constexpr qsizetype longestCharacter = 4; ///< bytes

/// The length of the UTF-8 character that the bytes begin with; 0: they begin with none.
qsizetype characterLength(QByteArrayView bytes) {
    for (qsizetype length = 1; length <= std::min(longestCharacter, bytes.size()); ++length)
        if (bytes.first(length).isValidUtf8()) return length;
    return 0;
}

/// The offset of the next byte that makes no UTF-8, or of the end.
qsizetype nextForeign(const QString& path, qsizetype from) {
    for (qsizetype i = from; i < path.size(); ++i) {
        const char16_t unit = path[i].unicode();
        if (QChar::isHighSurrogate(unit)) {
            ++i; // the other half of a character
        } else if (unit >= firstForeign && unit <= lastForeign) {
            return i;
        }
    }
    return path.size();
}

} // namespace

QString pathText(QByteArrayView native) {
    if (native.isValidUtf8()) return QString::fromUtf8(native);
    QString text;
    while (!native.isEmpty()) {
        const qsizetype length = characterLength(native);
        if (length > 0) {
            text += QString::fromUtf8(native.first(length));
        } else {
            text += QChar(char16_t(foreignBase + uchar(native.front())));
        }
        native = native.sliced(std::max<qsizetype>(length, 1));
    }
    return text;
}

QByteArray nativePath(const QString& path) {
    QByteArray native;
    for (qsizetype at = 0; at < path.size();) {
        const qsizetype foreign = nextForeign(path, at);
        native += QStringView(path).sliced(at, foreign - at).toUtf8();
        if (foreign < path.size()) native += char(path[foreign].unicode() - foreignBase);
        at = foreign + 1;
    }
    return native;
}

bool hasForeignBytes(const QString& path) {
    return nextForeign(path, 0) < path.size();
}

QString absolutePath(const QString& path) {
    std::error_code ignored; // the path stays relative where the current folder is gone
    const auto absolute = std::filesystem::absolute(nativePath(path).toStdString(), ignored);
    return ignored ? path : pathText(absolute.native());
}

} // namespace tessaline
