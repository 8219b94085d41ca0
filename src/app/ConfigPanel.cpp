#include "app/ConfigPanel.h"

#include "app/SideWindowPlacer.h"
#include "app/WindowOrder.h"
#include "platform/qt/FrameMarginsWatch.h"
#include "ui/ConfigWindow.h"
#include "ui/Services.h"

#include <QWindow>

namespace tessaline {

ConfigPanel::ConfigPanel(AppSettings& settings, SourceManager& sources,
                         const PrompterWindow& prompter, ScreenManager& screens,
                         const Platform& platform, const Services& services)
    : configWindow(std::make_unique<ConfigWindow>(settings, &sources, platform, services)) {
    configWindow->setScreenManager(&screens);
    configWindow->winId(); // makes the native window
    placer = std::make_unique<SideWindowPlacer>(*configWindow, prompter, screens, settings);
    configWindow->onSizeChanged = [this] { place(); };
    new FrameMarginsWatch(*configWindow->windowHandle(), [this] { place(); });
}

ConfigPanel::~ConfigPanel() = default;

void ConfigPanel::show() {
    configWindow->refreshUI();
    place();
    makeKeyAndOrderFront(*configWindow);
    configWindow->startPeriodicRefresh();
}

void ConfigPanel::place() {
    placer->place();
}

} // namespace tessaline
