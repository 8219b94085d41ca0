#pragma once

#include "app/remote/RemoteRequest.h"

#include <QString>

#include <cstddef>
#include <functional>

namespace tessaline {

class AppDelegate;

/// Drives the running program by commands from outside, on the paths that its buttons, menus and
/// shortcuts take.
class RemoteControl {
public:
    explicit RemoteControl(AppDelegate& delegate);

    using Reply = std::function<void(const RemoteAnswer& answer)>;

    /// Replies at once or, where another program has to be asked, later, when this may be gone.
    void carryOut(const ControlRequest& request, const Reply& reply);

private:
    RemoteAnswer answerTo(const ControlRequest& request);
    void carryOut(const ControlRequest& request);
    void setAutoScroll(bool on);
    void setCollapsed(bool collapsed);
    void paste(const Reply& reply);
    void openLatest(std::size_t number, const Reply& reply);

    AppDelegate& delegate;
};

} // namespace tessaline
