#pragma once

#include "platform/WebServer.h"

namespace tessaline {

/// Web server on Qt Network and Qt WebSockets. Nothing of either is started before something is
/// served.
class QtWebServer final : public WebServer {
public:
    std::unique_ptr<Service> serve(const Place& place, Site& site, QString* problem) override;
    QStringList networkAddresses() override;
};

} // namespace tessaline
