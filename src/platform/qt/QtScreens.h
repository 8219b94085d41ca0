#pragma once

#include "platform/Lifetime.h"
#include "platform/ScreenIdentity.h"
#include "platform/Screens.h"

#include <QObject>

#include <functional>
#include <memory>

class QScreen;

namespace tessaline {

class MainQueue;
class NotificationCenter;
class ReservedEdges;

/// The screens that Qt knows. One change on the desktop reaches Qt as a bundle of signals: whatever
/// arrives before the main queue gets its turn leads to one notification. Needs a QGuiApplication.
class QtScreens final : public QObject, public Screens {
public:
    using Identify = std::function<ScreenIdentity(const QScreen&)>;

    /// `identify` tells displays apart in the system's own way. `panels` knows what Qt does not
    /// know of the area that is left; null where Qt knows everything. The others are borrowed.
    QtScreens(NotificationCenter& notifications, MainQueue& queue, Identify identify,
              std::unique_ptr<ReservedEdges> panels);
    ~QtScreens() override;
    QtScreens(const QtScreens&) = delete;
    QtScreens& operator=(const QtScreens&) = delete;

    std::vector<Screen> all() const override;
    std::optional<Screen> mainScreen() const override;

private:
    Screen describe(const QScreen& screen) const;
    Rect visiblePartOf(const Rect& frame, const QScreen& screen, const QRect& primary) const;
    void watch(QScreen* screen);
    void announceChange();

    NotificationCenter& notifications;
    MainQueue& queue;
    Identify identify;
    std::unique_ptr<ReservedEdges> panels;
    bool announced = false;
    Lifetime lifetime;
};

} // namespace tessaline
