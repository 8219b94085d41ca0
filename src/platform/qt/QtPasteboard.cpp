#include "platform/qt/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

std::optional<QString> QtPasteboard::plainText() const {
    // Not hasText(), which is true for a list of files as well.
    const auto* data = QGuiApplication::clipboard()->mimeData();
    if (!data || !data->hasFormat(u"text/plain"_s)) return std::nullopt;
    return data->text();
}

} // namespace tessaline
