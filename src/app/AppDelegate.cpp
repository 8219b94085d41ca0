#include "app/AppDelegate.h"

#include "prompter/ControlStrip.h"
#include "prompter/PrompterWindow.h"
#include "prompter/controls/PressableButton.h"
#include "prompter/controls/TrafficLightCloseButton.h"
#include "sources/ClipboardSource.h"
#include "sources/ObsidianSource.h"

#include <QCoreApplication>
#include <QKeySequence>
#include <QShortcut>

namespace tessaline {

AppDelegate::AppDelegate(const Environment& borrowed)
    : environment(borrowed)
    , screenManager(environment.prompter.screens, environment.notifications) {}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching(const std::optional<QString>& text) {
    const PrompterPorts& ports = environment.prompter;
    sourceManager = std::make_unique<SourceManager>(
        settings, environment.recorder, environment.notifications,
        std::make_unique<ObsidianSource>(ports.mainQueue, environment.fileTasks, ports.timers),
        std::make_unique<ClipboardSource>(environment.pasteboard));
    screenManager.preferredDisplayID = settings.preferredDisplayID;
    createPrompter();
    screenManager.onScreenChange = [this] {
        prompterWindow->updateFrame();
        prompterWindow->rerender();
    };
    sourceManager->onContentUpdate = [this](const QString& content) {
        prompterWindow->updateText(content);
    };
    sourceChangeObserver = environment.notifications.observe(
        SourceManager::activeSourceDidChangeNotification(), [this](const Notification& change) {
            if (const auto* source = change.value<SourceType>(QStringLiteral("sourceType")))
                prompterWindow->updateSourceIndicator(*source);
        });
    prompterWindow->updateSourceIndicator(settings.activeSourceType);
    startApp(text);
}

void AppDelegate::createPrompter() {
    prompterWindow = std::make_unique<PrompterWindow>(settings, environment.prompter);
    prompterWindow->setScreenManager(&screenManager);
    prompterWindow->updateFrame();

    const ControlStrip& controls = prompterWindow->controls();
    connect(controls.autoScrollButton, &QAbstractButton::clicked, this, [this] { toggleScroll(); });
    connect(controls.minimizeButton, &QAbstractButton::clicked, this,
            [this] { prompterWindow->toggleCollapsed(); });
    connect(controls.pasteButton, &QAbstractButton::clicked, this,
            [this] { sourceManager->cycleSource(); });
    controls.configButton->setEnabled(false); // there is no settings window to open so far
    connect(controls.quitButton, &QAbstractButton::clicked, qApp, &QCoreApplication::quit);

    const auto shortcut = [this](const QKeySequence& keys, auto action) {
        connect(new QShortcut(keys, prompterWindow.get()), &QShortcut::activated, this, action);
    };
    shortcut(Qt::CTRL | Qt::Key_V, [this] { pasteFromClipboard(); });
    shortcut(Qt::META | Qt::Key_V, [this] { pasteFromClipboard(); });
    shortcut(QKeySequence::Quit, [] { QCoreApplication::quit(); });
}

void AppDelegate::startApp(const std::optional<QString>& text) {
    prompterWindow->makeKeyAndOrderFront();
    if (text && !text->isEmpty()) makeClipboardActive();
    sourceManager->startWatching();
    if (text) sourceManager->pasteText(*text);
}

void AppDelegate::pasteFromClipboard() {
    makeClipboardActive();
    sourceManager->pasteFromClipboard();
}

void AppDelegate::makeClipboardActive() {
    if (settings.activeSourceType != SourceType::clipboard)
        sourceManager->setActiveSource(SourceType::clipboard);
}

void AppDelegate::toggleScroll() {
    prompterWindow->toggleAutoScroll();
}

} // namespace tessaline
