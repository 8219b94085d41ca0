#include "screens/ScreenManager.h"

#include "platform/Screens.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace tessaline {

QString ScreenManager::screenDidChangeNotification() {
    return u"ScreenManagerScreenDidChange"_s;
}

ScreenManager::ScreenManager(const Screens& attachedScreens, NotificationCenter& center)
    : screens(attachedScreens)
    , notifications(center)
    , observer(center.observe(Screens::parametersDidChangeNotification(),
                              [this](const Notification&) { screenParametersDidChange(); })) {}

Screen ScreenManager::preferredScreen() const {
    const auto all = screens.all();
    if (preferredDisplayID) {
        const auto chosen = std::ranges::find(all, *preferredDisplayID, &Screen::id);
        if (chosen != all.end()) return *chosen;
    }
    const auto builtIn = std::ranges::find_if(all, &Screen::builtIn);
    if (builtIn != all.end()) return *builtIn;
    if (const auto main = screens.mainScreen()) return *main;
    return all.empty() ? Screen() : all.front();
}

void ScreenManager::screenParametersDidChange() {
    notifications.post({screenDidChangeNotification(), this, {}});
    if (const auto callback = onScreenChange) callback();
}

} // namespace tessaline
