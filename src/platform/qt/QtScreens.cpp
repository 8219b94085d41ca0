#include "platform/qt/QtScreens.h"

#include "platform/MainQueue.h"
#include "platform/NotificationCenter.h"
#include "platform/ReservedEdges.h"
#include "platform/ScreenCoordinates.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

Rect intersection(const Rect& a, const Rect& b) {
    const double left = std::max(a.minX(), b.minX());
    const double bottom = std::max(a.minY(), b.minY());
    const double right = std::min(a.maxX(), b.maxX());
    const double top = std::min(a.maxY(), b.maxY());
    return {left, bottom, std::max(right - left, 0.0), std::max(top - bottom, 0.0)};
}

Rect without(const QMarginsF& edges, const Rect& frame) {
    return {frame.x + edges.left(), frame.y + edges.bottom(),
            frame.width - edges.left() - edges.right(),
            frame.height - edges.top() - edges.bottom()};
}

} // namespace

QtScreens::QtScreens(NotificationCenter& center, MainQueue& mainQueue, Identify identifyScreen,
                     std::unique_ptr<ReservedEdges> reservedByPanels)
    : notifications(center)
    , queue(mainQueue)
    , identify(std::move(identifyScreen))
    , panels(std::move(reservedByPanels)) {
    if (panels) panels->onChange = [this] { announceChange(); };
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

QtScreens::~QtScreens() = default;

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
    const ScreenIdentity identity = identify(screen);
    const Rect frame = fromQtCoordinates(screen.geometry(), primary);
    return {.id = identity.id,
            .name = identity.name.isEmpty() ? screen.name() : identity.name,
            .frame = frame,
            .visibleFrame = visiblePartOf(frame, screen, primary),
            .builtIn = identity.builtIn,
            .refreshRate = screen.refreshRate()};
}

/// Where panels have to be asked, what Qt knows is the area that is left of the whole desktop.
Rect QtScreens::visiblePartOf(const Rect& frame, const QScreen& screen,
                              const QRect& primary) const {
    const Rect available = fromQtCoordinates(screen.availableGeometry(), primary);
    if (!panels) return available;
    const bool isWholeDesktop = QGuiApplication::screens().size() == 1;
    return intersection(isWholeDesktop ? available : frame, without(panels->of(screen), frame));
}

void QtScreens::watch(QScreen* screen) {
    connect(screen, &QScreen::geometryChanged, this, &QtScreens::announceChange);
    connect(screen, &QScreen::availableGeometryChanged, this, &QtScreens::announceChange);
    connect(screen, &QScreen::refreshRateChanged, this, &QtScreens::announceChange);
}

void QtScreens::announceChange() {
    if (std::exchange(announced, true)) return;
    queue.post(lifetime.guard([this] {
        announced = false;
        notifications.post({parametersDidChangeNotification(), this, {}});
    }));
}

} // namespace tessaline
