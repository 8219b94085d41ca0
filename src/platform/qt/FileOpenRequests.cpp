#include "platform/qt/FileOpenRequests.h"

#include <QFileOpenEvent>

#include <utility>

namespace tessaline {

FileOpenRequests::FileOpenRequests(std::function<void(const QString& path)> open)
    : openFile(std::move(open)) {}

bool FileOpenRequests::eventFilter(QObject* /*object*/, QEvent* event) {
    if (event->type() != QEvent::FileOpen) return false;
    // Addresses of other things have no path here.
    const QString path = static_cast<const QFileOpenEvent*>(event)->file();
    if (!path.startsWith(u'/')) return false;
    openFile(path);
    return true;
}

} // namespace tessaline
