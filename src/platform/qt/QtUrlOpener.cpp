#include "platform/qt/QtUrlOpener.h"

#include <QDesktopServices>
#include <QUrl>

namespace tessaline {

void QtUrlOpener::open(const QUrl& url) {
    QDesktopServices::openUrl(url);
}

} // namespace tessaline
