#include "platform/linux/wayland/LayerWindowTraits.h"

#include "platform/PlatformLog.h"
#include "platform/linux/wayland/QtWaylandObjects.h"
#include "platform/qt/WidgetFrame.h"

#include <QBackingStore>
#include <QGuiApplication>
#include <QPainter>
#include <QWidget>
#include <QWindow>

#include <wayland-client.h>

#include <chrono>
#include <utility>

namespace tessaline {

namespace {

/// Longer than a compositor takes to pass the keyboard on.
constexpr std::chrono::milliseconds patience{150};

/// Without an area, all of the surface.
void restrictInput(wl_surface* surface, const std::optional<QRect>& area) {
    wl_region* region = nullptr;
    if (area) {
        region = wl_compositor_create_region(waylandCompositor());
        wl_region_add(region, area->x(), area->y(), area->width(), area->height());
    }
    wl_surface_set_input_region(surface, region);
    if (region) wl_region_destroy(region);
    wl_surface_commit(surface);
}

/// To a compositor a mask is about the mouse alone, and Qt leaves there what was painted before.
void clearWhatIsMasked(const QWidget& window) {
    QBackingStore* store = window.backingStore();
    const QRegion hole = QRegion(window.rect()) - window.mask();
    if (window.mask().isEmpty() || hole.isEmpty() || !store || !window.windowHandle()->isExposed())
        return;
    store->beginPaint(hole);
    {
        QPainter painter(store->paintDevice());
        painter.setCompositionMode(QPainter::CompositionMode_Clear);
        for (const QRect& part : hole)
            painter.fillRect(part, Qt::black);
    }
    store->endPaint();
    store->flush(hole, window.windowHandle());
}

} // namespace

LayerWindowTraits::LayerWindowTraits(std::unique_ptr<SurfaceRoles> surfaceRoles,
                                     std::shared_ptr<SurfaceFrames> surfaceFrames)
    : roles(std::move(surfaceRoles)), frames(std::move(surfaceFrames)) {
    insisting.setSingleShot(true);
    insisting.setInterval(patience);
    QObject::connect(&insisting, &QTimer::timeout, &connections, [this] { insistOnGivingBack(); });
    roles->onPrompterSurface = [this](wl_surface* surface) { follow(surface); };
}

LayerWindowTraits::~LayerWindowTraits() {
    roles->onPrompterSurface = {};
    frames->setSurface(nullptr, nullptr);
}

Qt::WindowFlags LayerWindowTraits::creationFlags() const {
    return Qt::BypassWindowManagerHint;
}

bool LayerWindowTraits::excludeFromCapture(NativeWindow /*window*/) {
    if (!std::exchange(reportedCapture, true))
        qCWarning(windowLog, "Wayland cannot keep a window out of screen captures.");
    return false;
}

void LayerWindowTraits::place(QWidget& window, const Rect& frame, const Screen& /*screen*/) {
    setFrame(window, frame);
}

Rect LayerWindowTraits::frame(const QWidget& window) const {
    return frameOf(window);
}

void LayerWindowTraits::adopt(QWidget& window) {
    prompterWidget = &window;
    prompter = window.windowHandle();
    roles->setPrompter(prompter);
}

void LayerWindowTraits::release(QWidget& window) {
    if (QWindow* handle = window.windowHandle()) roles->end(*handle);
}

void LayerWindowTraits::follow(wl_surface* surface) {
    frames->setSurface(surface, prompterWidget);
    // A new surface takes input everywhere.
    if (surface && inputArea) restrictInput(surface, inputArea);
}

void LayerWindowTraits::setInputArea(QWidget& window, const std::optional<QRect>& area) {
    clearWhatIsMasked(window); // it was given its shape just now
    const bool changes = inputArea != area;
    inputArea = area;
    if (!area && !changes) return;
    QWindow* handle = window.windowHandle();
    wl_surface* surface = handle ? waylandSurface(*handle) : nullptr;
    if (surface) restrictInput(surface, area);
}

void LayerWindowTraits::takeKeyboard(NativeWindow /*window*/) {
    if (!prompter || roles->pointerWindow() != prompter) return;
    insisting.stop();
    roles->setKeyboard(*prompter, LayerSurface::Keyboard::exclusive);
}

void LayerWindowTraits::giveKeyboardBack(NativeWindow /*window*/) {
    if (!prompter) return;
    roles->setKeyboard(*prompter, LayerSurface::Keyboard::none);
    insisting.start();
}

/// Some compositors leave the keyboard where it is, until the surface goes.
void LayerWindowTraits::insistOnGivingBack() {
    if (prompter && QGuiApplication::focusWindow() == prompter) roles->showAgain(*prompter);
}

} // namespace tessaline
