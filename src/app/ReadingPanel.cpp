#include "app/ReadingPanel.h"

#include "app/AppDelegate.h"
#include "app/SideWindowPlacer.h"
#include "app/WindowOrder.h"
#include "app/page/RemotePage.h"
#include "platform/Platform.h"
#include "platform/WebServer.h"
#include "platform/WindowTraits.h"
#include "platform/qt/FrameMarginsWatch.h"
#include "prompter/PrompterLook.h"
#include "prompter/PrompterWindow.h"
#include "ui/reading/ReadingWindow.h"

#include <QWindow>

#include <functional>

namespace tessaline {

ReadingPanel::ReadingPanel(AppDelegate& owner, const ScreenManager& screenManager,
                           const AppSettings& appSettings, const Platform& thePlatform)
    : delegate(owner), screens(screenManager), settings(appSettings), platform(thePlatform) {}

ReadingPanel::~ReadingPanel() = default;

void ReadingPanel::show() {
    if (!window) makeWindow();
    window->refresh();
    place();
    makeKeyAndOrderFront(*window);
}

void ReadingPanel::showOptions() {
    if (window) window->showOptions();
}

void ReadingPanel::place() {
    if (placer) placer->place();
}

LookHelp ReadingPanel::lookHelp() const {
    return {[this] { return platform.windowTraits->showsTranslucency(); },
            [this] { return platform.windowTraits->canSetInputArea(); },
            [this] { return delegate.takeSuggestedSize(); }};
}

/// The window may be there before the page is.
PageHelp ReadingPanel::pageHelp() const {
    const auto asking = [this](auto question) {
        return [this, question] {
            using Answer = decltype(std::invoke(question, delegate.remotePage()));
            if (delegate.hasStarted()) return std::invoke(question, delegate.remotePage());
            return Answer();
        };
    };
    return {asking(&RemotePage::code), asking(&RemotePage::problem), asking(&RemotePage::pages),
            [this] { return platform.web->networkAddresses(); },
            asking(&RemotePage::disconnectAll)};
}

void ReadingPanel::makeWindow() {
    const PrompterWindow& prompter = delegate.prompter();
    window = std::make_unique<ReadingWindow>(delegate.reading(), lookHelp(), pageHelp());
    window->winId(); // makes the native window
    placer = std::make_unique<SideWindowPlacer>(*window, prompter, screens, settings);
    window->onSizeChanged = [this] { place(); };
    QObject::connect(&prompter.look(), &PrompterLook::changed, window.get(),
                     &ReadingWindow::showOptions);
    new FrameMarginsWatch(*window->windowHandle(), [this] { place(); });
}

} // namespace tessaline
