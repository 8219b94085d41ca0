#include "platform/linux/wayland/SurfaceRoles.h"

#include "platform/linux/wayland/LayerTitleBar.h"
#include "platform/linux/wayland/PopupSurface.h"
#include "platform/linux/wayland/QtWaylandObjects.h"

#include <QGuiApplication>
#include <QPlatformSurfaceEvent>
#include <QPointerEvent>
#include <QScreen>
#include <QWidget>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace tessaline {

namespace {

bool needsRole(const QWindow& window) {
    // What is dragged is shown by the compositor as part of the pointer.
    return !window.parent() && !window.inherits("QShapedPixmapWindow");
}

bool isPopup(const QWindow& window) {
    return window.type() == Qt::Popup || window.type() == Qt::ToolTip;
}

int area(const QRect& rect) {
    return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

/// The screen that most of a window is on.
QScreen* screenOf(const QWindow& window) {
    QScreen* best = QGuiApplication::primaryScreen();
    if (!best) return nullptr;
    const auto screens = QGuiApplication::screens();
    const auto shared = [&window](const QScreen* screen) {
        return area(screen->geometry() & window.geometry());
    };
    for (QScreen* screen : screens)
        if (shared(screen) > shared(best)) best = screen;
    return best;
}

/// In the event loop's next turn, if the window still is.
template <typename Deed>
void later(QWindow& window, Deed deed) {
    QMetaObject::invokeMethod(&window, deed, Qt::QueuedConnection);
}

LayerSurface::Place placeOf(const QWindow& window, const QScreen& screen) {
    return {window.position() - screen.geometry().topLeft(), window.size()};
}

} // namespace

SurfaceRoles::SurfaceRoles() : globals(waylandDisplay()) {
    qGuiApp->installEventFilter(this);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, [this](QScreen* screen) {
        watch(*screen);
        showHomeless();
    });
    connect(qGuiApp, &QGuiApplication::primaryScreenChanged, this, &SurfaceRoles::showHomeless);
    const auto screens = QGuiApplication::screens();
    for (QScreen* screen : screens)
        watch(*screen);
}

SurfaceRoles::~SurfaceRoles() = default;

bool SurfaceRoles::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::ZOrderChange && object->isWidgetType())
        raise(static_cast<const QWidget&>(*object));
    if (!object->isWindowType()) return false;
    auto& window = static_cast<QWindow&>(*object);
    if (!needsRole(window)) return false;
    switch (event->type()) {
    case QEvent::PlatformSurface:
        if (static_cast<const QPlatformSurfaceEvent*>(event)->surfaceEventType() ==
            QPlatformSurfaceEvent::SurfaceCreated) {
            watch(window);
        } else {
            end(window);
        }
        break;
    case QEvent::Expose:
        if (window.isExposed()) give(window);
        break;
    case QEvent::Move:
        follow(window);
        break;
    case QEvent::Resize:
        follow(window);
        leaveIfOutside(window);
        break;
    case QEvent::Enter:
    case QEvent::MouseMove:
        entered = &window;
        pointer = static_cast<const QSinglePointEvent*>(event)->position();
        break;
    case QEvent::MouseButtonPress:
        takeKeyboard(window);
        break;
    case QEvent::Leave:
        if (entered == &window) entered = nullptr;
        giveKeyboardBack(window);
        break;
    default:
        break;
    }
    return false;
}

void SurfaceRoles::watch(QWindow& window) {
    if (!watched.insert(&window).second) return;
    LayerTitleBar::addTo(window, [this, &window] { return cornerOfPointer(window); });
    window.setFlag(Qt::BypassWindowManagerHint);
    // Told before Qt makes or destroys the surface, unlike the events.
    connect(&window, &QWindow::visibleChanged, this, [this, &window](bool visible) {
        if (visible) {
            window.setFlag(Qt::BypassWindowManagerHint);
        } else {
            end(window);
        }
    });
    connect(&window, &QObject::destroyed, this, [this, &window] { watched.erase(&window); });
}

void SurfaceRoles::give(QWindow& window) {
    if (roleOf(&window) || homeless.contains(&window) || covered.contains(&window)) return;
    if (!isPopup(window)) return hang(window);
    if (SurfaceRole* parent = roleOf(parentOf(window))) popUp(window, *parent);
}

void SurfaceRoles::hang(QWindow& window) {
    QScreen* screen = screenOf(window);
    wl_surface* surface = waylandSurface(window);
    if (!screen || !surface) return;
    wl_output* output = waylandOutput(*screen);
    if (!output) return lose(window);
    hung[&window] = {std::make_unique<LayerSurface>(
                         globals, surface, output, placeOf(window, *screen), firstKeyboard(window),
                         [this, &window] { later(window, [this, &window] { lose(window); }); }),
                     screen, screen->devicePixelRatio()};
    if (&window != prompter) return cover(window);
    if (onPrompterSurface) onPrompterSurface(surface);
}

void SurfaceRoles::popUp(QWindow& window, SurfaceRole& parent) {
    const QWindow* below = parentOf(window);
    const QRect frame = window.geometry().translated(-below->position());
    popups[&window] = std::make_unique<PopupSurface>(
        globals, waylandSurface(window), parent, frame, window.type() == Qt::Popup,
        [&window] { later(window, [&window] { window.close(); }); });
}

void SurfaceRoles::end(QWindow& window) {
    homeless.erase(&window);
    covered.erase(&window);
    popups.erase(&window);
    if (!hung.contains(&window)) return;
    if (&window == prompter && onPrompterSurface) onPrompterSurface(nullptr);
    hung.erase(&window);
    uncover();
}

bool SurfaceRoles::isCovered(const QWindow& lower, const QWindow& upper) const {
    return &lower != &upper && &lower != prompter && &upper != prompter &&
           lower.geometry().intersects(upper.geometry());
}

void SurfaceRoles::cover(const QWindow& upper) {
    for (auto each = hung.begin(); each != hung.end();) {
        QWindow* window = each->first;
        if (isCovered(*window, upper)) {
            covered.insert(window);
            each = hung.erase(each);
            withdrawSurface(*window);
        } else {
            ++each;
        }
    }
}

void SurfaceRoles::uncover() {
    for (QWindow* window : covered) {
        const bool isStillCovered = std::any_of(hung.begin(), hung.end(), [&](const auto& upper) {
            return isCovered(*window, *upper.first);
        });
        if (!isStillCovered) later(*window, [this, window] { showAgain(*window); });
    }
}

void SurfaceRoles::raise(const QWidget& widget) {
    QWindow* window = widget.isWindow() ? widget.windowHandle() : nullptr;
    if (covered.contains(window)) later(*window, [this, window] { showAgain(*window); });
}

/// Windows go where their geometry is, also from one output to another.
void SurfaceRoles::follow(QWindow& window) {
    const auto found = hung.find(&window);
    if (found == hung.end()) return;
    QScreen* screen = screenOf(window);
    if (!screen) return;
    if (screen == found->second.screen)
        return found->second.surface->place(placeOf(window, *screen));
    later(window, [this, &window] { showAgain(window); });
}

QPoint SurfaceRoles::cornerOfPointer(QWindow& window) const {
    const auto found = hung.find(&window);
    if (found == hung.end() || !found->second.screen) return window.position();
    return found->second.screen->geometry().topLeft() + found->second.surface->cornerOfPointer();
}

/// Its size in points changes with its scale. What Qt has drawn for one scale it shows at any
/// other.
void SurfaceRoles::watch(QScreen& screen) {
    connect(&screen, &QScreen::geometryChanged, this, [this, &screen] {
        for (const auto& [window, role] : hung) {
            if (role.screen != &screen || role.scale == screen.devicePixelRatio()) continue;
            later(*window, [this, window = window] { showAgain(*window); });
        }
    });
}

/// Where a surface shrinks under a resting pointer, some compositors say nothing.
void SurfaceRoles::leaveIfOutside(QWindow& window) {
    if (entered != &window || QRectF({}, window.size()).contains(pointer)) return;
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&window, &leave);
}

/// The compositor has taken a role back, mostly because the output has gone.
void SurfaceRoles::lose(QWindow& window) {
    end(window);
    if (!window.isVisible()) return;
    homeless.insert(&window);
    withdrawSurface(window);
    QMetaObject::invokeMethod(
        this, [this] { showHomeless(); }, Qt::QueuedConnection);
}

void SurfaceRoles::showHomeless() {
    QScreen* screen = QGuiApplication::primaryScreen();
    if (!screen || !waylandOutput(*screen)) return;
    for (QWindow* window : std::exchange(homeless, {}))
        showAgain(*window);
}

void SurfaceRoles::showAgain(QWindow& window) {
    if (!window.isVisible()) return;
    window.setVisible(false);
    window.setVisible(true);
}

void SurfaceRoles::setKeyboard(QWindow& window, LayerSurface::Keyboard keyboard) {
    const auto found = hung.find(&window);
    if (found != hung.end()) found->second.surface->setKeyboard(keyboard);
}

SurfaceRole* SurfaceRoles::roleOf(QWindow* window) const {
    if (const auto layer = hung.find(window); layer != hung.end())
        return layer->second.surface.get();
    const auto popup = popups.find(window);
    return popup == popups.end() ? nullptr : popup->second.get();
}

/// Menus of nobody's go to the window that was clicked.
QWindow* SurfaceRoles::parentOf(const QWindow& popup) const {
    if (QWindow* parent = popup.transientParent(); roleOf(parent)) return parent;
    if (roleOf(entered)) return entered;
    return prompter;
}

/// Where the compositor gives it to nobody else until it is given back, whatever is clicked.
void SurfaceRoles::giveKeyboardBack(QWindow& window) {
    if (&window == prompter || globals.offersKeyboardOnDemand()) return;
    if (popups.empty() && QGuiApplication::mouseButtons() == Qt::NoButton)
        setKeyboard(window, LayerSurface::Keyboard::none);
}

void SurfaceRoles::takeKeyboard(QWindow& window) {
    if (&window != prompter) setKeyboard(window, firstKeyboard(window));
}

LayerSurface::Keyboard SurfaceRoles::firstKeyboard(const QWindow& window) const {
    if (&window == prompter) return LayerSurface::Keyboard::none;
    return globals.offersKeyboardOnDemand() ? LayerSurface::Keyboard::onDemand
                                            : LayerSurface::Keyboard::exclusive;
}

} // namespace tessaline
