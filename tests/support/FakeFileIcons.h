#pragma once

#include "platform/FileIcons.h"

#include <QString>

#include <map>

namespace tessaline {

/// Icons by path, as the test put them there; null icons for other paths.
class FakeFileIcons final : public FileIcons {
public:
    QIcon iconForFile(const QString& path) const override {
        const auto entry = icons.find(path);
        return entry == icons.end() ? QIcon() : entry->second;
    }

    std::map<QString, QIcon> icons;
};

} // namespace tessaline
