#include "support/TestEnvironment.h"

#include <QFile>
#include <QtGlobal>

namespace tessaline {

TestEnvironment::TestEnvironment() {
    if (!home.isValid()) qFatal("There is no place for a temporary home folder");
    const QByteArray path = QFile::encodeName(home.path());
    qputenv("HOME", path);
    qputenv("XDG_RUNTIME_DIR", path);
    qputenv("LC_ALL", "C.UTF-8");
    qputenv("DO_NOT_TRACK", "1");
}

} // namespace tessaline
