#include "app/AppDelegate.h"

#include "analytics/UsageRecorder.h"
#include "app/ConfigPanel.h"
#include "app/ControlDeeds.h"
#include "app/FirstRun.h"
#include "app/PrompterCutout.h"
#include "app/ReadingPanel.h"
#include "app/Remotes.h"
#include "app/ScriptIntake.h"
#include "app/SettingChoices.h"
#include "app/SizeAdviser.h"
#include "app/StatusItem.h"
#include "app/opening/ScriptOpening.h"
#include "app/shortcuts/Shortcuts.h"
#include "cli/CommandLine.h"
#include "platform/AccessibilityTrust.h"
#include "platform/ActivationPolicy.h"
#include "platform/BundleInformation.h"
#include "platform/MainQueue.h"
#include "platform/Platform.h"
#include "platform/WindowTraits.h"
#include "prompter/PrompterWindow.h"
#include "prompter/view/ScriptView.h"
#include "sources/ClipboardSource.h"
#include "sources/ObsidianSource.h"
#include "sources/SourceManager.h"
#include "ui/ConfigWindow.h"
#include "ui/Services.h"

#include <utility>

namespace tessaline {

using namespace Qt::Literals::StringLiterals;

namespace {

/// The object, which the launch must have made by now.
template <typename Object>
Object& required(const std::unique_ptr<Object>& object, const char* name) {
    if (!object) qFatal("The application delegate has no %s: it was not launched", name);
    return *object;
}

} // namespace

AppDelegate::AppDelegate(const Environment& borrowed)
    : environment(borrowed)
    , platform(environment.platform)
    , readingUsage(readingSettings, environment.recorder)
    , screenManager(*platform.screens, *platform.notifications)
    , permissionManager(platform) {}

AppDelegate::~AppDelegate() = default;

Services AppDelegate::services() const {
    return {environment.recorder, environment.obsidian, environment.notes};
}

PrompterWindow& AppDelegate::prompter() const {
    return required(prompterWindow, "prompter window");
}

PrompterStatus AppDelegate::status() const {
    PrompterStatus status = prompter().status();
    status.version = CommandLine::version();
    tellOptions(readingSettings.values(), QTime::currentTime(), status);
    SizeAdviser(prompter(), readingSettings).tell(status);
    opening().tell(status);
    if (remotes) remotes->page.tell(status);
    return status;
}

RemotePage& AppDelegate::remotePage() const {
    return required(remotes, "remotes").page;
}

SettingChoices& AppDelegate::choices() const {
    return required(settingChoices, "choices");
}

ConfigWindow& AppDelegate::config() const {
    return required(configPanel, "settings window").window();
}

SourceManager& AppDelegate::sources() const {
    return required(sourceManager, "source manager");
}

ScriptIntake& AppDelegate::scripts() const {
    return required(scriptIntake, "script intake");
}

ScriptOpening& AppDelegate::opening() const {
    return required(scriptOpening, "script opening");
}

void AppDelegate::applicationDidFinishLaunching() {
    environment.recorder.trackAppLaunch();
    createSourceManager();
    screenManager.preferredDisplayID = settings.preferredDisplayID();
    createPrompterWindow();
    createPanels();
    connectControls(*this);
    setupStatusItem();
    screenManager.onScreenChange = weakly(&AppDelegate::screensChanged);
    sourceManager->onContentUpdate = weakly(&AppDelegate::showContent);
    sourceChangeObserver =
        platform.notifications->observe(SourceManager::activeSourceDidChangeNotification(),
                                        weakly(&AppDelegate::activeSourceChanged));
    prompterWindow->updateSourceIndicator(settings.activeSourceType());
    configureTelemetry();
    environment.recorder.trackPermissionStatus(PermissionType::accessibility,
                                               platform.trust->isTrusted());
    environment.recorder.trackEnvironmentSnapshot(settings);
    if (settings.hasCompletedOnboarding()) {
        startApp();
    } else {
        firstRun = std::make_unique<FirstRun>(permissionManager, settings, *sourceManager, platform,
                                              services(), weakly(&AppDelegate::startApp));
    }
}

void AppDelegate::applicationWillTerminate() {
    if (scriptOpening) scriptOpening->finish();
    environment.recorder.trackAppTerminate();
}

void AppDelegate::createSourceManager() {
    sourceManager = std::make_unique<SourceManager>(
        settings, environment.recorder, *platform.notifications,
        std::make_unique<ObsidianSource>(*platform.mainQueue, *platform.fileTasks,
                                         *platform.timers),
        std::make_unique<ClipboardSource>(*platform.pasteboard));
    scriptIntake =
        std::make_unique<ScriptIntake>(*sourceManager, settings, platform, environment.recorder);
}

void AppDelegate::createPrompterWindow() {
    prompterWindow = std::make_unique<PrompterWindow>(settings, readingSettings, platform);
    prompterWindow->setScreenManager(&screenManager);
    prompterWindow->updateFrame();
    prompterCutout = std::make_unique<PrompterCutout>(*prompterWindow);
    scriptOpening = std::make_unique<ScriptOpening>(*scriptIntake, *prompterWindow, platform,
                                                    weakly(&AppDelegate::reveal));
}

void AppDelegate::createPanels() {
    SettingChoices::Effects effects;
    effects.looksChanged = weakly(&AppDelegate::settingsChanged);
    effects.sourceChosen = weakly(&AppDelegate::chooseSource);
    settingChoices =
        std::make_unique<SettingChoices>(settings, environment.recorder, std::move(effects));
    configPanel = std::make_unique<ConfigPanel>(settings, *sourceManager, *prompterWindow,
                                                screenManager, platform, services());
    config().onSettingsChanged = weakly(&AppDelegate::settingsChanged);
    config().onSourceChanged = weakly(&AppDelegate::handleSourceChange);
    readingPanel = std::make_unique<ReadingPanel>(*this, screenManager, settings, platform);
}

void AppDelegate::setupStatusItem() {
    StatusItem::Actions actions;
    actions.showPrompter = weakly(&AppDelegate::showPrompterWindow);
    actions.showConfig = weakly(&AppDelegate::showConfig);
    actions.showReading = weakly(&AppDelegate::showReading);
    actions.quit = weakly(&AppDelegate::quitApp);
    statusItem =
        std::make_unique<StatusItem>(*platform.statusArea, *platform.timers, std::move(actions));
    // The keys that the menu names work in the prompter as well.
    prompterWindow->addActions(statusItem->actions());
    prompterWindow->textView().addAction(&statusItem->readingAction());
}

void AppDelegate::configureTelemetry() {
    const auto appID = platform.bundle->value(u"TelemetryDeckAppID"_s);
    if (appID && !appID->isEmpty()) environment.setTelemetryAppID(*appID);
}

void AppDelegate::startApp() {
    prompter().makeKeyAndOrderFront();
    setupShortcuts();
    sources().startWatching();
    scripts().start();
    remotes = std::make_unique<Remotes>(*this, settings, platform);
    remotes->page.onChange = [this] { readingPanel->showOptions(); };
}

void AppDelegate::setupShortcuts() {
    Shortcuts::Actions actions;
    actions.performScroll = weakly(&AppDelegate::performScroll);
    actions.toggleScroll = weakly(&AppDelegate::toggleScroll);
    actions.paste = weakly<>(&AppDelegate::pasteFromClipboard);
    shortcuts = std::make_unique<Shortcuts>(platform, environment.recorder, std::move(actions));
    shortcuts->setupShortcuts();
}

void AppDelegate::showPrompterWindow() {
    prompter().makeKeyAndOrderFront();
    prompter().updateFrame();
    environment.recorder.record({.name = u"window_shown"_s});
}

void AppDelegate::hidePrompterWindow() {
    prompter().hide();
    environment.recorder.record({.name = u"window_hidden"_s});
}

void AppDelegate::toggleMinimize() {
    prompter().toggleCollapsed();
    environment.recorder.record(
        {.name = prompter().isCollapsed() ? u"window_minimized"_s : u"window_expanded"_s});
}

void AppDelegate::toggleScroll() {
    prompter().toggleAutoScroll();
    config().refreshUI();
    environment.recorder.trackAutoScrollToggled(settings.autoScrollEnabled(),
                                                settings.scrollRate());
}

void AppDelegate::cycleSource() {
    sources().cycleSource();
}

void AppDelegate::showConfig() {
    required(configPanel, "settings window").show();
    platform.activationPolicy->activateIgnoringOtherApps();
    environment.recorder.record({.name = u"settings_opened"_s});
}

void AppDelegate::showReading() {
    readingPanel->show();
    platform.activationPolicy->activateIgnoringOtherApps();
}

void AppDelegate::reveal() {
    if (firstRun && firstRun->isUp()) {
        firstRun->reveal();
    } else {
        showPrompterWindow();
    }
}

void AppDelegate::pasteFromClipboard() {
    scripts().paste([](const QString& /*problem*/) {});
}

void AppDelegate::performScroll(double deltaY) {
    prompter().performScroll(deltaY);
}

void AppDelegate::showContent(const QString& content) {
    prompter().updateText(content);
}

void AppDelegate::screensChanged() {
    prompter().updateFrame();
    prompter().rerender();
    config().rebuildScreenPopup();
    repositionWindows();
}

void AppDelegate::chooseSource(SourceType source) {
    sources().setActiveSource(source);
    handleSourceChange(source);
}

void AppDelegate::handleSourceChange(SourceType source) {
    prompter().updateSourceIndicator(source);
    sources().startWatching();
    environment.recorder.trackSourceChanged(source);
}

void AppDelegate::activeSourceChanged(const Notification& change) {
    const auto* source = change.value<SourceType>(u"sourceType"_s);
    if (!source) return;
    prompter().updateSourceIndicator(*source);
    if (*source != SourceType::clipboard) scripts().stopFollowing();
}

void AppDelegate::settingsChanged() {
    prompter().updateFrame();
    prompter().rerender();
    prompter().updateScrollParameters();
    repositionWindows();
}

QString AppDelegate::takeSuggestedSize() {
    const SizeSuggestion suggestion = SizeAdviser(prompter(), readingSettings).suggestion();
    choices().setFontSize(suggestion.points);
    return suggestion.text();
}

void AppDelegate::repositionWindows() {
    configPanel->place();
    readingPanel->place();
}

} // namespace tessaline
