#include "app/shortcuts/Shortcuts.h"

#include "analytics/UsageRecorder.h"
#include "platform/AccessibilityTrust.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"

#include <chrono>
#include <iostream>
#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr TimerMaker::Interval accessibilityPollInterval{2.0};
constexpr int middleButton = 2;
constexpr int fourthButton = 3;

const GlobalKeyMonitor::Chord& toggleChord() {
    static const GlobalKeyMonitor::Chord chord{
        .modifiers = Modifier::control | Modifier::shift | Modifier::command, .characters = u"t"_s};
    return chord;
}

bool isToggle(const KeyEvent& key) {
    return key.modifiers == toggleChord().modifiers &&
           key.characters.toLower() == toggleChord().characters;
}

bool isPaste(const KeyEvent& key) {
    return key.modifiers == Modifier::command && key.characters.toLower() == "v"_L1;
}

EventTapLife::TimePoint now() {
    return std::chrono::steady_clock::now();
}

bool hasControl(ModifierFlags modifiers) {
    return (modifiers & Modifier::control) != 0;
}

} // namespace

Shortcuts::Shortcuts(const Platform& borrowedPlatform, UsageRecorder& usageRecorder,
                     Actions givenActions)
    : platform(borrowedPlatform)
    , recorder(usageRecorder)
    , actions(std::move(givenActions))
    , scrollEventTap(
          *platform.eventTaps, *platform.mainQueue,
          lifetime.guard([this](const TapEvent& event) { return handleScrollEventTap(event); })) {}

Shortcuts::~Shortcuts() = default;

void Shortcuts::setupShortcuts() {
    localMonitor = platform.localKeys->start(
        lifetime.guard([this](const KeyEvent& key) { return handleKeyDown(key); }));
    lastKnownAccessibilityState = platform.trust->isTrusted();
    trySetupGlobalShortcuts();
    accessibilityPollTimer =
        platform.timers->every(accessibilityPollInterval, [this] { pollAccessibility(); });
}

void Shortcuts::pollAccessibility() {
    const bool trusted = platform.trust->isTrusted();
    if (trusted != lastKnownAccessibilityState) {
        lastKnownAccessibilityState = trusted;
        tapFailureReported = false;
        recorder.trackPermissionStatus(PermissionType::accessibility, trusted);
    }
    scrollEventTap.dropIfOff();
    // Also without a change: what another program held before may be free by now.
    trySetupGlobalShortcuts();
}

void Shortcuts::trySetupGlobalShortcuts() {
    if (!platform.trust->isTrusted()) return;
    if (!globalMonitor) {
        globalMonitor = platform.globalKeys->start(
            toggleChord(),
            lifetime.guard([this](const KeyEvent& key) { handleGlobalKeyDown(key); }));
    }
    setupGlobalScrollEventTap();
}

void Shortcuts::handleGlobalKeyDown(const KeyEvent& key) {
    if (isToggle(key)) toggleScroll(key);
}

bool Shortcuts::handleKeyDown(const KeyEvent& key) {
    if (isPaste(key)) {
        actions.paste();
        return true;
    }
    if (hasControl(key.modifiers) && key.keyCode == KeyEvent::upArrow) {
        actions.performScroll(shortcutScrollStep);
        return true;
    }
    if (hasControl(key.modifiers) && key.keyCode == KeyEvent::downArrow) {
        actions.performScroll(-shortcutScrollStep);
        return true;
    }
    if (isToggle(key)) {
        toggleScroll(key);
        return true;
    }
    return false;
}

/// A key that is held repeats, but is one press.
void Shortcuts::toggleScroll(const KeyEvent& key) {
    if (!key.isRepeat) actions.toggleScroll();
}

void Shortcuts::setupGlobalScrollEventTap() {
    if (const auto report = platform.trust->report(); report && !report->gesturesAreSeen) return;
    const bool isRefused = scrollEventTap.makeIfNeeded(now()) == EventTapLife::Attempt::refused;
    if (!isRefused || std::exchange(tapFailureReported, true)) return;
    std::cout << "Failed to create scroll event tap" << std::endl;
}

EventTap::Verdict Shortcuts::handleScrollEventTap(const TapEvent& event) {
    const bool control = hasControl(event.modifiers);
    switch (event.type) {
    case TapEvent::Type::tapDisabled:
        scrollEventTap.switchedOff(now());
        return EventTap::Verdict::passOn;
    case TapEvent::Type::scrollWheel:
        return control && event.isReadable ? scrollLater(event) : EventTap::Verdict::passOn;
    case TapEvent::Type::otherMouseDown: {
        const bool toggles =
            event.buttonNumber == middleButton || event.buttonNumber == fourthButton;
        return control && toggles ? toggleLater() : EventTap::Verdict::passOn;
    }
    case TapEvent::Type::rightMouseDown:
        return control ? toggleLater() : EventTap::Verdict::passOn;
    case TapEvent::Type::other:
        break;
    }
    return EventTap::Verdict::passOn;
}

EventTap::Verdict Shortcuts::scrollLater(const TapEvent& event) {
    const double delta = event.hasPreciseDeltas ? event.scrollingDeltaY
                                                : event.scrollingDeltaY * shortcutScrollMultiplier;
    platform.mainQueue->post(lifetime.guard([this, delta] { actions.performScroll(delta); }));
    return EventTap::Verdict::swallow;
}

EventTap::Verdict Shortcuts::toggleLater() {
    platform.mainQueue->post(lifetime.guard([this] { actions.toggleScroll(); }));
    return EventTap::Verdict::swallow;
}

} // namespace tessaline
