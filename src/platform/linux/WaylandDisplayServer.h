#pragma once

#include "platform/linux/DisplayServer.h"

namespace tessaline {

/// A Wayland compositor that lets programs hang surfaces over all windows.
class WaylandDisplayServer final : public DisplayServer {
public:
    /// The one that Qt is connected to; null where it is none, or offers no such thing.
    static std::unique_ptr<WaylandDisplayServer> connected();

    void addAdapters(Platform& platform) const override;
};

} // namespace tessaline
