#include "settings/SupportFolder.h"

#include <QDir>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QString homeFolderPath() {
    const QString home = QDir::homePath();
    return home == "/"_L1 ? QString() : home;
}

QString supportFolderPath() {
    return homeFolderPath() + "/Library/Application Support/Tessaline"_L1;
}

} // namespace tessaline
