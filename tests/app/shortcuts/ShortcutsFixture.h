#pragma once

#include "app/shortcuts/Shortcuts.h"

#include "support/FakeAccessibilityTrust.h"
#include "support/FakeEventTapMaker.h"
#include "support/FakeGlobalKeyMonitor.h"
#include "support/FakeLocalKeyMonitor.h"
#include "support/FakeMainQueue.h"
#include "support/FakeTimerMaker.h"
#include "support/RecordingUsageRecorder.h"
#include "support/TestPlatform.h"

#include <gmock/gmock.h>

#include <memory>
#include <vector>

namespace tessaline {

/// Shortcuts among fakes; counts what they do.
class ShortcutsFixture : public ::testing::Test, public TestPlatform {
protected:
    static constexpr ModifierFlags toggleModifiers =
        Modifier::control | Modifier::shift | Modifier::command;

    static KeyEvent key(ModifierFlags modifiers, const QString& characters) {
        return {.characters = characters, .modifiers = modifiers};
    }
    static KeyEvent toggleKey() { return key(toggleModifiers, QStringLiteral("t")); }

    /// One line upwards on a wheel.
    static TapEvent wheel(ModifierFlags modifiers = Modifier::control) {
        return {
            .type = TapEvent::Type::scrollWheel, .modifiers = modifiers, .scrollingDeltaY = 1.0};
    }

    void setUpTrusted() {
        trust.trusted = true;
        shortcuts->setupShortcuts();
    }

    RecordingUsageRecorder recorder;
    std::vector<double> scrolls;
    int toggles = 0;
    int pastes = 0;
    std::unique_ptr<Shortcuts> shortcuts = std::make_unique<Shortcuts>(
        platform, recorder,
        Shortcuts::Actions{.performScroll = [this](double deltaY) { scrolls.push_back(deltaY); },
                           .toggleScroll = [this] { ++toggles; },
                           .paste = [this] { ++pastes; }});
};

} // namespace tessaline
