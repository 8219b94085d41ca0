#pragma once

#include "platform/linux/wayland/CompositorOutput.h"

#include <functional>
#include <memory>
#include <vector>

namespace tessaline {

/// The monitors of the compositor, for programs that show their windows elsewhere: by a connection
/// of its own, which follows changes. Main thread only.
class CompositorOutputs {
public:
    /// Waits for the compositor's list once. Null where there is no compositor, or where it does
    /// not tell the names of monitors.
    static std::unique_ptr<CompositorOutputs> open();

    ~CompositorOutputs();
    CompositorOutputs(const CompositorOutputs&) = delete;
    CompositorOutputs& operator=(const CompositorOutputs&) = delete;

    std::vector<CompositorOutput> all() const;

    /// Called when they are others than before.
    std::function<void()> onChange;

private:
    class Connection;

    explicit CompositorOutputs(std::unique_ptr<Connection> connection);

    std::unique_ptr<Connection> connection;
};

} // namespace tessaline
