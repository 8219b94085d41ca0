#pragma once

#include <optional>

namespace tessaline {

/// Asks the session's Wayland compositor whether it lets programs hang surfaces over all windows,
/// on a connection that ends with the call. None where no compositor answers. Needs no application
/// object.
std::optional<bool> compositorOffersLayers();

/// The same about any interface of the protocol.
std::optional<bool> compositorOffers(const char* interface);

/// Has Qt give the program's windows no role of their own, and leave them where they are put.
/// Before the QGuiApplication is made, and only where the compositor offers layers.
void leaveRolesToUs();
bool areRolesLeftToUs();

} // namespace tessaline
