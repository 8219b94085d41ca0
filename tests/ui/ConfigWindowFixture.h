#pragma once

#include "screens/ScreenManager.h"
#include "ui/ConfigWindow.h"
#include "ui/VisibleSheet.h"
#include "ui/WindowStage.h"
#include "ui/controls/PopupButton.h"

#include <QPushButton>
#include <QTest>

#include <gmock/gmock.h>

#include <memory>
#include <stdexcept>
#include <vector>

namespace tessaline {

/// A settings window amid fakes. Change the stage first; the window is built when it is first
/// asked for.
class ConfigWindowFixture : public testing::Test {
protected:
    ConfigWindow& window() {
        if (!built) {
            built = std::make_unique<ConfigWindow>(stage.settings, sourceManager.get(),
                                                   stage.platform, stage.services);
            built->onSettingsChanged = [this] { ++settingsChanges; };
            built->onSourceChanged = [this](SourceType source) { sources.push_back(source); };
        }
        return *built;
    }

    /// The same, shown and in front.
    ConfigWindow& shown() {
        window().show();
        return window();
    }

    /// Gives the window, not yet built, a source manager.
    void useSourceManager() {
        sourceManager = stage.makeSourceManager();
        stage.recorder.events.clear();
    }

    /// Gives the window a screen manager.
    void useScreenManager() {
        window().setScreenManager(&screenManager);
        window().rebuildScreenPopup();
    }

    /// A control of the window, by its name.
    template <typename T>
    T& control(const char* name) {
        T* found = window().findChild<T*>(QString::fromLatin1(name));
        if (!found) throw std::runtime_error(name);
        return *found;
    }

    /// Chooses an item of a popup as the user does.
    void choose(const char* popup, int index) {
        auto& button = control<PopupButton>(popup);
        button.setCurrentIndex(index);
        Q_EMIT button.activated(index);
    }

    static std::vector<QString> titlesOf(const PopupButton& popup) {
        std::vector<QString> titles;
        titles.reserve(std::size_t(popup.count()));
        for (int i = 0; i < popup.count(); ++i)
            titles.push_back(popup.itemText(i));
        return titles;
    }

    Alert* sheet() { return visibleSheet(window()); }

    WindowStage stage;
    ScreenManager screenManager{stage.screens, stage.notifications};
    std::unique_ptr<SourceManager> sourceManager;
    int settingsChanges = 0;
    std::vector<SourceType> sources;

private:
    std::unique_ptr<ConfigWindow> built;
};

} // namespace tessaline
