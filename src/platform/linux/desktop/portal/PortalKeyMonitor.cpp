#include "platform/linux/desktop/portal/PortalKeyMonitor.h"

#include <utility>

namespace tessaline {

namespace {

class PortalRegistration final : public GlobalKeyMonitor::Registration {
public:
    PortalRegistration(std::shared_ptr<PortalShortcuts> portalShortcuts,
                       std::unique_ptr<Registration> serverRegistration)
        : shortcuts(std::move(portalShortcuts)), server(std::move(serverRegistration)) {}
    ~PortalRegistration() override { shortcuts->onToggle = nullptr; }

private:
    std::shared_ptr<PortalShortcuts> shortcuts;
    std::unique_ptr<Registration> server;
};

} // namespace

PortalKeyMonitor::PortalKeyMonitor(std::shared_ptr<PortalShortcuts> portalShortcuts,
                                   std::unique_ptr<GlobalKeyMonitor> displayServer)
    : shortcuts(std::move(portalShortcuts)), server(std::move(displayServer)) {}

std::unique_ptr<GlobalKeyMonitor::Registration> PortalKeyMonitor::start(const Chord& chord,
                                                                        Handler handler) {
    auto ofServer = server ? server->start(chord, handler) : nullptr;
    if (!ofServer && shortcuts->state() != PortalShortcuts::State::granted) return nullptr;
    // Whatever key it was, it counts as the chord.
    const KeyEvent press{.characters = chord.characters, .modifiers = chord.modifiers};
    shortcuts->onToggle = [press, handler = std::move(handler)] { handler(press); };
    return std::make_unique<PortalRegistration>(shortcuts, std::move(ofServer));
}

void PortalKeyMonitor::onAction(const std::function<void(Action)>& act) {
    shortcuts->onAction = act;
}

} // namespace tessaline
