#include "sources/files/DroppedContent.h"

#include "settings/FilePath.h"

#include <QMimeData>
#include <QSysInfo>

#include <optional>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

QString uriList() {
    return u"text/uri-list"_s;
}

bool isHere(const QByteArray& host) {
    return host.isEmpty() || host == "localhost" || host == QSysInfo::machineHostName().toUtf8();
}

/// Byte by byte: a name need not be UTF-8, and Qt's own class for addresses wants it to be.
std::optional<QString> pathOf(const QByteArray& address) {
    if (address.startsWith('/')) return pathText(address);
    if (!address.startsWith("file:")) return {};
    QByteArray rest = address.sliced(5);
    if (rest.startsWith("//")) {
        const qsizetype root = rest.indexOf('/', 2);
        if (root < 0 || !isHere(rest.sliced(2, root - 2))) return {};
        rest = rest.sliced(root);
    }
    if (!rest.startsWith('/')) return {};
    const QByteArray path = QByteArray::fromPercentEncoding(rest);
    if (path.contains('\0')) return {};
    return pathText(path);
}

} // namespace

bool DroppedContent::isIn(const QMimeData& data) {
    return data.hasFormat(uriList()) || data.hasText();
}

DroppedContent DroppedContent::of(const QMimeData& data) {
    DroppedContent content;
    for (const QByteArray& line : data.data(uriList()).split('\n')) {
        const QByteArray address = line.trimmed();
        if (address.isEmpty() || address.startsWith('#')) continue;
        if (const auto path = pathOf(address)) {
            content.paths += *path;
        } else {
            ++content.others;
        }
    }
    if (content.paths.isEmpty() && content.others == 0) content.text = data.text();
    return content;
}

} // namespace tessaline
