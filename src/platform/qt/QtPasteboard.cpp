#include "platform/qt/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

void QtPasteboard::refresh(std::function<void(const QString& problem)> done) {
    const auto* data = QGuiApplication::clipboard()->mimeData();
    // Not hasText(), which is true for a list of files as well.
    const bool holdsText = data && (data->hasFormat(u"text/plain"_s) ||
                                    data->hasFormat(u"text/plain;charset=utf-8"_s));
    text = holdsText ? std::optional(data->text()) : std::nullopt;
    done(text && !text->isEmpty() ? QString() : noTextProblem());
}

} // namespace tessaline
