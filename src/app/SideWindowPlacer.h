#pragma once

namespace tessaline {

class AppSettings;
class PrompterWindow;
class ScreenManager;
class SideWindow;

/// Keeps a window beside the prompter where it can be used.
class SideWindowPlacer {
public:
    /// Everything is borrowed.
    SideWindowPlacer(SideWindow& window, const PrompterWindow& prompter,
                     const ScreenManager& screens, const AppSettings& settings);

    /// Puts the window below the prompter, or else beside or over it, on the prompter's screen.
    /// While a slider of the window is dragged, the window does not slip from under the pointer.
    void place();

private:
    SideWindow& window;
    const PrompterWindow& prompter;
    const ScreenManager& screens;
    const AppSettings& settings;
    bool isBelow = false; ///< the prompter, when nobody held a slider
};

} // namespace tessaline
