#include "settings/PersistedSettings.h"

#include "settings/SupportFolder.h"

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

QString PersistedSettings::defaultNotePath() {
    return homeFolderPath() + "/Library/Mobile Documents/com~apple~CloudDocs/Obsidian/notch.md"_L1;
}

} // namespace tessaline
