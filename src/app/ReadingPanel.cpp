#include "app/ReadingPanel.h"

#include "app/SideWindowPlacer.h"
#include "app/WindowOrder.h"
#include "platform/qt/FrameMarginsWatch.h"
#include "prompter/PrompterLook.h"
#include "prompter/PrompterWindow.h"
#include "ui/reading/ReadingWindow.h"

#include <QWindow>

#include <utility>

namespace tessaline {

ReadingPanel::ReadingPanel(ReadingSettings& readingSettings, const PrompterWindow& prompterWindow,
                           const ScreenManager& screenManager, const AppSettings& appSettings,
                           LookHelp lookHelp)
    : reading(readingSettings)
    , prompter(prompterWindow)
    , screens(screenManager)
    , settings(appSettings)
    , help(std::move(lookHelp)) {}

ReadingPanel::~ReadingPanel() = default;

void ReadingPanel::show() {
    if (!window) makeWindow();
    window->refresh();
    place();
    makeKeyAndOrderFront(*window);
}

void ReadingPanel::place() {
    if (placer) placer->place();
}

void ReadingPanel::makeWindow() {
    window = std::make_unique<ReadingWindow>(reading, help);
    window->winId(); // makes the native window
    placer = std::make_unique<SideWindowPlacer>(*window, prompter, screens, settings);
    window->onSizeChanged = [this] { place(); };
    QObject::connect(&prompter.look(), &PrompterLook::changed, window.get(),
                     &ReadingWindow::showOptions);
    new FrameMarginsWatch(*window->windowHandle(), [this] { place(); });
}

} // namespace tessaline
