#include "platform/linux/XWaylandScreens.h"

#include "platform/NotificationCenter.h"
#include "platform/Platform.h"
#include "platform/Screens.h"
#include "platform/linux/desktop/ConnectorIdentity.h"
#include "platform/linux/wayland/CompositorOutputs.h"

#include <QGuiApplication>
#include <QScreen>

namespace tessaline {

namespace {

/// A screen's place is in pixels already, its size is not.
QRect areaInPixels(const QScreen& screen) {
    const QSizeF size = QSizeF(screen.geometry().size()) * screen.devicePixelRatio();
    return {screen.geometry().topLeft(), size.toSize()};
}

ScreenIdentity identify(const QScreen& screen, const CompositorOutputs& outputs) {
    const bool isOnly = QGuiApplication::screens().size() == 1;
    const auto output = outputIn(areaInPixels(screen), isOnly, outputs.all());
    if (!output || output->name.isEmpty()) return {};
    // As Qt would tell of it in a window of Wayland's, so that a choice lasts there, too.
    ScreenIdentity identity =
        connectorIdentity(output->name, output->manufacturer, output->model, {});
    identity.name = output->name;
    return identity;
}

} // namespace

QtScreens::Identify identifyByCompositor(Platform& platform) {
    const std::shared_ptr<CompositorOutputs> outputs = CompositorOutputs::open();
    if (!outputs) return [](const QScreen&) { return ScreenIdentity{}; };
    outputs->onChange = [&platform] {
        platform.notifications->post(
            {Screens::parametersDidChangeNotification(), platform.screens.get(), {}});
    };
    return [outputs](const QScreen& screen) { return identify(screen, *outputs); };
}

} // namespace tessaline
