#pragma once

#include "platform/UrlOpener.h"

#include <QUrl>

#include <vector>

namespace tessaline {

/// Opens nothing: keeps the addresses.
class FakeUrlOpener final : public UrlOpener {
public:
    void open(const QUrl& url) override { opened.push_back(url); }

    std::vector<QUrl> opened;
};

} // namespace tessaline
