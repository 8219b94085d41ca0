#include "app/remote/TemporaryFolder.h"

#include <QDir>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QString temporaryFolder() {
    const QString named = QDir::tempPath();
    return named.isEmpty() ? u"/tmp"_s : named;
}

} // namespace tessaline
