#pragma once

#include "platform/ScreenIdentity.h"
#include "platform/Screens.h"

#include <QObject>

#include <functional>

class QScreen;

namespace tessaline {

class MainQueue;
class NotificationCenter;

/// The screens that Qt knows. One change on the desktop reaches Qt as a bundle of signals: whatever
/// arrives before the main queue gets its turn leads to one notification. Needs a QGuiApplication.
class QtScreens final : public QObject, public Screens {
public:
    using Identify = std::function<ScreenIdentity(const QScreen&)>;

    /// `identify` tells displays apart in the system's own way. The others are borrowed.
    QtScreens(NotificationCenter& notifications, MainQueue& queue, Identify identify);

    std::vector<Screen> all() const override;
    std::optional<Screen> mainScreen() const override;

private:
    Screen describe(const QScreen& screen) const;
    void watch(QScreen* screen);
    void announceChange();

    NotificationCenter& notifications;
    MainQueue& queue;
    Identify identify;
    bool announced = false;
};

} // namespace tessaline
