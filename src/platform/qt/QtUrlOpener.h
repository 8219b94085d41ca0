#pragma once

#include "platform/UrlOpener.h"

namespace tessaline {

/// Leaves addresses to the desktop that Qt runs on. Needs a QGuiApplication.
class QtUrlOpener final : public UrlOpener {
public:
    void open(const QUrl& url) override;
};

} // namespace tessaline
