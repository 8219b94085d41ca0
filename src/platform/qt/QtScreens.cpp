#include "platform/qt/QtScreens.h"

#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"
#include "platform/ScreenCoordinates.h"

#include <QGuiApplication>
#include <QPointer>
#include <QScreen>
#include <QWindow>

#include <utility>

namespace tessaline {

QtScreens::QtScreens(NotificationCenter& center, MainQueue& mainQueue, Identify identifyScreen)
    : notifications(center), queue(mainQueue), identify(std::move(identifyScreen)) {
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
        watch(screen);
        announceChange();
    });
    connect(qGuiApp, &QGuiApplication::screenRemoved, this, &QtScreens::announceChange);
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &QtScreens::announceChange);
    const auto screens = QGuiApplication::screens();
    for (QScreen* screen : screens)
        watch(screen);
}

std::vector<Screen> QtScreens::all() const {
    std::vector<Screen> result;
    const auto screens = QGuiApplication::screens();
    for (const QScreen* screen : screens)
        result.push_back(describe(*screen));
    return result;
}

std::optional<Screen> QtScreens::mainScreen() const {
    const QWindow* focused = QGuiApplication::focusWindow();
    const QScreen* screen = focused ? focused->screen() : QGuiApplication::primaryScreen();
    if (!screen) return std::nullopt;
    return describe(*screen);
}

Screen QtScreens::describe(const QScreen& screen) const {
    const QRect primary = QGuiApplication::primaryScreen()->geometry();
    const auto [id, builtIn] = identify(screen);
    return {.id = id,
            .name = screen.name(),
            .frame = fromQtCoordinates(screen.geometry(), primary),
            .visibleFrame = fromQtCoordinates(screen.availableGeometry(), primary),
            .builtIn = builtIn,
            .refreshRate = screen.refreshRate()};
}

void QtScreens::watch(QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, &QtScreens::announceChange);
    connect(screen, &QScreen::availableGeometryChanged, this, &QtScreens::announceChange);
    connect(screen, &QScreen::refreshRateChanged, this, &QtScreens::announceChange);
}

void QtScreens::announceChange() {
    if (std::exchange(announced, true)) return;
    queue.post([self = QPointer(this)] {
        if (!self) return;
        self->announced = false;
        self->notifications.post({parametersDidChangeNotification(), self.data(), {}});
    });
}

} // namespace tessaline
