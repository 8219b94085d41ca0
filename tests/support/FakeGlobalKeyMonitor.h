#pragma once

#include "platform/GlobalKeyMonitor.h"

#include <vector>

namespace tessaline {

/// Delivers the keys that the test presses in other applications.
class FakeGlobalKeyMonitor final : public GlobalKeyMonitor {
public:
    std::unique_ptr<Registration> start(const Chord& chord, Handler newHandler) override {
        chords.push_back(chord);
        if (!allowed) return nullptr;
        handler = std::move(newHandler);
        return std::make_unique<Registration>();
    }

    void onAction(const std::function<void(Action)>& newAct) override { act = newAct; }

    void press(const KeyEvent& key) { handler(key); }

    bool allowed = true;
    std::vector<Chord> chords; ///< of every attempt
    Handler handler;
    std::function<void(Action)> act;
};

} // namespace tessaline
