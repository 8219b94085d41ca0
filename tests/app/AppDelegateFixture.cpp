#include "AppDelegateFixture.h"

#include "support/Part.h"

#include "prompter/ControlStrip.h"
#include "prompter/PrompterWindow.h"
#include "settings/SettingsCodec.h"
#include "sources/ClipboardSource.h"
#include "ui/ConfigWindow.h"
#include "ui/OnboardingWindow.h"

#include "support/TestFiles.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QScreen>

#include <algorithm>

namespace tessaline {

namespace {

template <typename Window>
Window* topLevelWindow() {
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (auto* window = qobject_cast<Window*>(widget)) return window;
    }
    return nullptr;
}

} // namespace

AppDelegateFixture::AppDelegateFixture() {
    QDir(supportFolderPath()).removeRecursively();
    const QSize size = QApplication::primaryScreen()->size();
    Screen screen{.id = 1, .name = QStringLiteral("screen"), .refreshRate = 60};
    // It reaches further down than the real one, so that all windows have room below one another.
    constexpr double further = 400;
    screen.frame = {0, -further, double(size.width()), size.height() + further};
    screen.visibleFrame = screen.frame;
    screens.attached = {screen};
    screens.main = screen;
    configure([](PersistedSettings& settings) { settings.hasCompletedOnboarding = true; });
}

AppDelegateFixture::~AppDelegateFixture() = default;

void AppDelegateFixture::configure(const std::function<void(PersistedSettings&)>& change) {
    PersistedSettings values = AppSettings().values();
    change(values);
    putFile(supportFolderPath() + QStringLiteral("/config.json"), encodeSettings(values).value());
}

Environment AppDelegateFixture::environment() {
    return {
        .platform = platform,
        .obsidian = obsidian,
        .notes = notes,
        .recorder = recorder,
        .setTelemetryAppID = [this](const QString& id) { telemetryAppIDs.push_back(id); },
        .terminate = [this] { ++terminations; },
    };
}

AppDelegate& AppDelegateFixture::launch() {
    if (!delegate) delegate = std::make_unique<AppDelegate>(environment());
    delegate->applicationDidFinishLaunching();
    return *delegate;
}

PrompterWindow* AppDelegateFixture::prompter() const {
    return topLevelWindow<PrompterWindow>();
}

ConfigWindow* AppDelegateFixture::config() const {
    return topLevelWindow<ConfigWindow>();
}

OnboardingWindow* AppDelegateFixture::onboarding() const {
    return topLevelWindow<OnboardingWindow>();
}

QString AppDelegateFixture::keptScript() {
    QFile file(ClipboardSource::contentFilePath());
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QString AppDelegateFixture::shownSource() const {
    return part<QLabel>(*prompter(), "prompter_sourceLabel")->text();
}

bool AppDelegateFixture::recorded(const QString& name) const {
    const auto names = recorder.names();
    return std::find(names.begin(), names.end(), name) != names.end();
}

} // namespace tessaline
