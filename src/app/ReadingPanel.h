#pragma once

#include "ui/reading/LookSection.h"
#include "ui/reading/PageSection.h"

#include <memory>

namespace tessaline {

class AppDelegate;
class AppSettings;
class ReadingWindow;
class ScreenManager;
class SideWindowPlacer;
struct Platform;

/// The window of the reading options, which is made when it is first asked for, and kept beside the
/// prompter.
class ReadingPanel {
public:
    /// Borrows all; the delegate owns it and has the prompter.
    ReadingPanel(AppDelegate& delegate, const ScreenManager& screens, const AppSettings& settings,
                 const Platform& platform);
    ~ReadingPanel();
    ReadingPanel(const ReadingPanel&) = delete;
    ReadingPanel& operator=(const ReadingPanel&) = delete;

    /// Brings the window to the front.
    void show();

    /// Shows what the options are now, if there is a window.
    void showOptions();

    /// Puts the window where it can be used, if there is one.
    void place();

private:
    void makeWindow();
    LookHelp lookHelp() const;
    PageHelp pageHelp() const;

    AppDelegate& delegate;
    const ScreenManager& screens;
    const AppSettings& settings;
    const Platform& platform;
    std::unique_ptr<ReadingWindow> window;
    std::unique_ptr<SideWindowPlacer> placer;
};

} // namespace tessaline
