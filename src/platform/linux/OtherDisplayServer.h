#pragma once

#include "platform/linux/DisplayServer.h"

namespace tessaline {

/// A display of which no more is known than what Qt knows, such as a Wayland compositor or none at
/// all.
class OtherDisplayServer final : public DisplayServer {
public:
    void addAdapters(Platform& platform) const override;
};

} // namespace tessaline
