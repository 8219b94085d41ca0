#pragma once

class QUrl;

namespace tessaline {

/// Opens addresses with the application that the desktop chose for them.
class UrlOpener {
public:
    virtual ~UrlOpener() = default;

    /// Returns at once; nothing happens where no application takes the address.
    virtual void open(const QUrl& url) = 0;
};

} // namespace tessaline
