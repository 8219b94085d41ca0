// Draws both windows in the states that they can be in, for people to look at:
// ui_pictures FOLDER

#include "permissions/PermissionManager.h"
#include "screens/ScreenManager.h"
#include "support/TestEnvironment.h"
#include "ui/Alert.h"
#include "ui/ConfigWindow.h"
#include "ui/OnboardingWindow.h"
#include "ui/WindowStage.h"
#include "ui/controls/PopupButton.h"
#include "ui/controls/Switch.h"
#include "ui/reading/ReadingWindow.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPushButton>
#include <QTest>
#include <QTextStream>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

QIcon gem() {
    QPixmap picture(64, 64);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(QColor(124, 58, 237));
    painter.setPen(Qt::NoPen);
    painter.drawPolygon(QPolygon({{32, 2}, {56, 20}, {48, 60}, {14, 56}, {8, 22}}));
    return QIcon(picture);
}

/// Shows a window, waits until it stands still, and writes what it looks like.
class Camera {
public:
    explicit Camera(const QString& path) : folder(path) { folder.mkpath(u"."_s); }

    void take(QWidget& window, const QString& name) const {
        if (!window.isVisible()) window.show();
        QTest::qWait(300);
        const bool written = window.grab().save(folder.filePath(name + u".png"_s));
        QTextStream(stdout) << name << ' ' << window.width() << 'x' << window.height()
                            << (written ? "\n" : " NOT WRITTEN\n");
    }

    void takeSheet(QWidget& window, const QString& name) const {
        QTest::qWait(50);
        auto* sheet = window.findChild<Alert*>(QString(), Qt::FindDirectChildrenOnly);
        if (sheet) take(*sheet, name);
    }

private:
    QDir folder;
};

/// A stage with Obsidian's icon and two displays.
struct Set : WindowStage {
    Set() {
        icons.icons.emplace(u"/apps/obsidian"_s, gem());
        // High enough for the whole settings window below the prompter.
        screens.attached.front().frame.height = screens.main->frame.height = 1200;
        plugIn(Screen{
            .id = 9, .name = u"DELL U2723QE with a long name"_s, .frame = {1000, 0, 2560, 1440}});
    }

    void enableObsidian(bool pluginInstalled, bool pluginEnabled) {
        installObsidian(pluginInstalled, pluginEnabled);
        settings.setSourceEnabled(SourceType::obsidian, true);
    }
};

struct Settings : Set {
    std::unique_ptr<ConfigWindow> build() {
        auto window = std::make_unique<ConfigWindow>(settings, nullptr, platform, services);
        window->setScreenManager(&manager);
        window->refreshUI();
        return window;
    }

    ScreenManager manager{screens, notifications};
};

void takeSettings(const Camera& camera) {
    {
        Settings off;
        camera.take(*off.build(), u"settings-obsidian-off"_s);
        off.trust.trusted = true;
        off.settings.setXOffset(-135.9);
        camera.take(*off.build(), u"settings-left-granted"_s);
    }
    {
        Settings on;
        on.enableObsidian(true, true);
        on.settings.setXOffset(235);
        on.settings.setPreferredDisplayID(9);
        on.trust.trusted = true;
        camera.take(*on.build(), u"settings-obsidian-active"_s);
        on.obsidian.pluginEnabled = false;
        camera.take(*on.build(), u"settings-obsidian-disabled"_s);
        on.obsidian.pluginInstalled = false;
        const auto window = on.build();
        camera.take(*window, u"settings-obsidian-missing"_s);
        for (int i = 0; i < 3; ++i)
            QTest::keyClick(window.get(), Qt::Key_Tab);
        camera.take(*window, u"settings-focus-popup"_s);
        for (int i = 0; i < 2; ++i)
            QTest::keyClick(window.get(), Qt::Key_Tab);
        camera.take(*window, u"settings-focus-slider"_s);
        window->findChild<PopupButton*>(u"config_screenPopup"_s)->showPopup();
        QTest::qWait(100);
        if (QWidget* popup = QApplication::activePopupWidget()) {
            camera.take(*popup, u"settings-popup"_s);
            popup->close();
        }
        window->findChild<QPushButton*>(u"obsidianConfigButton"_s)->click();
        camera.takeSheet(*window, u"sheet-reinstalled"_s);
    }
    {
        Settings failing;
        failing.enableObsidian(true, true);
        failing.obsidian.installResult = {
            false,
            u"Could not write /home/someone/Documents/Vault/.obsidian/plugins/tessaline/manifest.json: No space left on device"_s};
        const auto window = failing.build();
        camera.take(*window, u"settings-before-failure"_s);
        window->findChild<QPushButton*>(u"obsidianConfigButton"_s)->click();
        camera.takeSheet(*window, u"sheet-failed"_s);
    }
    {
        Settings notes;
        notes.settings.setActiveSourceType(SourceType::appleNotes);
        const auto window = notes.build();
        camera.take(*window, u"settings-notes-none"_s);
        notes.settings.setAppleNotesConfig(
            AppleNotesConfiguration{u"1"_s, u"Opening keynote for the spring meeting"_s});
        window->refreshUI();
        camera.take(*window, u"settings-notes-chosen"_s);
        window->findChild<QPushButton*>(u"selectNoteButton"_s)->click();
        notes.notes.answer(std::vector<NoteLibrary::Note>{{u"1"_s, u"Opening keynote"_s},
                                                          {u"2"_s, u"Shopping"_s}});
        camera.takeSheet(*window, u"sheet-notes"_s);
    }
}

void takeOnboarding(const Camera& camera) {
    const auto build = [](Set& set) {
        struct Shown {
            PermissionManager manager;
            OnboardingWindow window;
            explicit Shown(Set& stage)
                : manager(stage.platform)
                , window(manager, stage.settings, nullptr, stage.platform, stage.services) {}
        };
        return std::make_unique<Shown>(set);
    };
    {
        Set none;
        camera.take(build(none)->window, u"welcome-no-obsidian"_s);
    }
    {
        Set granted;
        granted.trust.trusted = true;
        granted.obsidian.appPath = u"/apps/obsidian"_s;
        camera.take(build(granted)->window, u"welcome-no-vault-granted"_s);
    }
    Set whole;
    whole.installObsidian();
    const auto shown = build(whole);
    camera.take(shown->window, u"welcome-obsidian-off"_s);
    for (Switch* toggle : shown->window.findChildren<Switch*>())
        if (toggle->isEnabled()) toggle->click();
    camera.takeSheet(shown->window, u"sheet-bridge"_s);
    camera.take(shown->window, u"welcome-obsidian-on"_s);
}

void takeReading(const Camera& camera) {
    Set set;
    ReadingSettings settings(set.folder.filePath(u"reading.json"_s));
    const LookHelp help{[] { return false; }, [] { return true; },
                        [] { return u"20 minutes of arc at 60 cm on this screen: 18 points"_s; }};
    ReadingWindow window(settings, help, {}, [] { return QTime(12, 0); });
    window.fitInto(5000);
    camera.take(window, u"reading-speed"_s);
    settings.change([](ReadingOptions& options) {
        options = {.pace = PaceMode::words,
                   .eyeLine = 0.33,
                   .guide = ReadingGuide::band,
                   .guideLines = 2,
                   .countdownSeconds = 3,
                   .atEnd = ScriptEnd::goRound,
                   .glide = true};
    });
    camera.take(window, u"reading-words"_s);
    settings.change([](ReadingOptions& options) { options.pace = PaceMode::finish; });
    camera.take(window, u"reading-minutes"_s);
    for (int i = 0; i < 2; ++i)
        QTest::keyClick(&window, Qt::Key_Tab);
    camera.take(window, u"reading-focus-minutes"_s);
    settings.change([](ReadingOptions& options) { options.finishAt = TimeOfDay{11 * 60}; });
    camera.take(window, u"reading-tomorrow"_s);
    settings.change([](ReadingOptions& options) {
        options = {.mirror = Mirroring::horizontal,
                   .groundOpacity = 0.7,
                   .fontFamily = u"A Font That Is Gone"_s,
                   .lineSpacing = 1.25};
    });
    window.findChild<QPushButton*>(u"reading_suggestButton"_s)->click();
    camera.take(window, u"reading-look"_s);
}

} // namespace
} // namespace tessaline

int main(int argc, char** argv) {
    const tessaline::TestEnvironment environment;
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("fusion"));
    const QStringList arguments = QApplication::arguments();
    const tessaline::Camera camera(arguments.value(1, QStringLiteral("pictures")));
    tessaline::takeSettings(camera);
    tessaline::takeOnboarding(camera);
    tessaline::takeReading(camera);
    return 0;
}
