#pragma once

#include "platform/NotificationCenter.h"
#include "platform/Screen.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace tessaline {

class Screens;

/// Answers on which display the prompter hangs, and tells when displays came, went or moved.
class ScreenManager {
public:
    /// Posted after every change of the displays, with the manager as sender.
    static QString screenDidChangeNotification();

    /// Borrows both and watches for changes from now on.
    ScreenManager(const Screens& screens, NotificationCenter& notifications);
    ScreenManager(const ScreenManager&) = delete;
    ScreenManager& operator=(const ScreenManager&) = delete;

    /// The chosen display when it is attached, else the built-in one, the main one, the first one.
    /// Without any display an empty screen, so that callers always get a value.
    Screen preferredScreen() const;

    /// Called after every change, after the notification.
    std::function<void()> onScreenChange;

    /// The display that the user chose; none: chosen automatically. Kept while that display is
    /// away.
    std::optional<std::uint32_t> preferredDisplayID;

private:
    void screenParametersDidChange();

    const Screens& screens;
    NotificationCenter& notifications;
    NotificationCenter::Observation observer;
};

} // namespace tessaline
