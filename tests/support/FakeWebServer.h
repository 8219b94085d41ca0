#pragma once

#include "platform/WebServer.h"

#include <map>
#include <vector>

namespace tessaline {

/// Web server whose browsers the test plays.
class FakeWebServer final : public WebServer {
public:
    std::unique_ptr<Service> serve(const Place& place, Site& served, QString* why) override {
        if (!problem.isEmpty()) {
            *why = problem;
            return nullptr;
        }
        lastPlace = place;
        site = &served;
        ++timesServed;
        return std::make_unique<FakeService>(*this);
    }

    QStringList networkAddresses() override { return addresses; }

    bool isServing() const { return site != nullptr; }

    /// What a page was told last; empty: nothing.
    QString lastTold(Client client) {
        const auto& messages = told[client];
        return messages.empty() ? QString() : messages.back();
    }

    Place lastPlace;
    Site* site = nullptr; ///< while it is served
    int timesServed = 0;
    QString problem; ///< why nothing can be served
    QStringList addresses;
    std::map<Client, std::vector<QString>> told;
    std::vector<Client> dropped;

private:
    class FakeService final : public Service {
    public:
        explicit FakeService(FakeWebServer& maker) : server(maker) {}
        ~FakeService() override { server.site = nullptr; }
        void tell(Client client, const QString& message) override {
            server.told[client].push_back(message);
        }
        void drop(Client client) override {
            server.dropped.push_back(client);
            server.site->left(client);
        }

    private:
        FakeWebServer& server;
    };
};

} // namespace tessaline
