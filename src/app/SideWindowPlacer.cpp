#include "app/SideWindowPlacer.h"

#include "app/SideWindowPlacement.h"
#include "platform/ScreenCoordinates.h"
#include "prompter/PrompterWindow.h"
#include "screens/ScreenManager.h"
#include "settings/AppSettings.h"
#include "ui/SideWindow.h"
#include "ui/controls/FittingScrollArea.h"

#include <QWindow>

namespace tessaline {

SideWindowPlacer::SideWindowPlacer(SideWindow& sideWindow, const PrompterWindow& prompterWindow,
                                   const ScreenManager& screenManager,
                                   const AppSettings& appSettings)
    : window(sideWindow), prompter(prompterWindow), screens(screenManager), settings(appSettings) {}

void SideWindowPlacer::place() {
    const QRect primary = primaryGeometry();
    const Screen screen = prompter.currentScreen().value_or(screens.preferredScreen());
    Rect unfolded = prompter.frame();
    unfolded.height = settings.height();
    unfolded.y = screen.frame.maxY() - settings.height();

    const QMargins frame = window.windowHandle()->frameMargins();
    const int forFrame = frame.isNull() ? titleBarAllowance : frame.top() + frame.bottom();
    const QSize whole = window.wholeSize();
    const SideWindowPlacement placement =
        placeSideWindow({.width = double(whole.width() + frame.left() + frame.right()),
                         .height = double(whole.height() + forFrame),
                         .scrollBar = double(window.scrollBarWidth())},
                        screen, unfolded);

    const Rect now = fromQtCoordinates(window.geometry().marginsAdded(frame), primary);
    Rect target = now;
    const bool isHeld = window.isSliderHeld();
    if (!isHeld) {
        window.fitInto(int(placement.room) - forFrame);
        const QSize size = window.size().grownBy(frame);
        target = {placement.left, 0, double(size.width()), double(size.height())};
    }
    const bool followsPrompter = isBelow && placement.belowPrompter;
    if (!isHeld || followsPrompter) target.y = placement.top - target.height;
    if (!isHeld) isBelow = placement.belowPrompter;
    window.setGeometry(toQtCoordinates(target, primary).marginsRemoved(frame));
}

} // namespace tessaline
