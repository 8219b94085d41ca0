#include "platform/qt/QtWebServer.h"

#include "platform/qt/QtWebService.h"

#include <QHostAddress>
#include <QNetworkInterface>

#include <algorithm>

namespace tessaline {

namespace {

bool isOfANetwork(const QHostAddress& address) {
    // Others cannot write the name of an interface of ours into an address.
    return !address.isLoopback() && !address.isLinkLocal() && address.scopeId().isEmpty();
}

} // namespace

std::unique_ptr<WebServer::Service> QtWebServer::serve(const Place& place, Site& site,
                                                       QString* problem) {
    auto service = std::make_unique<QtWebService>(site);
    if (!service->listen(place, problem)) return nullptr;
    return service;
}

QStringList QtWebServer::networkAddresses() {
    QStringList addresses;
    for (const QNetworkInterface& interface : QNetworkInterface::allInterfaces()) {
        if (!interface.flags().testFlag(QNetworkInterface::IsRunning)) continue;
        for (const QNetworkAddressEntry& entry : interface.addressEntries())
            if (isOfANetwork(entry.ip())) addresses += entry.ip().toString();
    }
    // The short ones, which people can type, come first.
    std::stable_partition(addresses.begin(), addresses.end(),
                          [](const QString& address) { return !address.contains(u':'); });
    return addresses;
}

} // namespace tessaline
