#pragma once

#include "platform/LocalKeyMonitor.h"

namespace tessaline {

/// Delivers the keys that the test presses in windows of ours.
class FakeLocalKeyMonitor final : public LocalKeyMonitor {
public:
    std::unique_ptr<Registration> start(Handler newHandler) override {
        ++starts;
        handler = std::move(newHandler);
        return std::make_unique<Registration>();
    }

    /// True when the key was used, and so does not reach the window.
    bool press(const KeyEvent& key) { return handler(key); }

    int starts = 0;
    Handler handler;
};

} // namespace tessaline
