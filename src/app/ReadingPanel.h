#pragma once

#include "ui/reading/LookSection.h"

#include <memory>

namespace tessaline {

class AppSettings;
class PrompterWindow;
class ReadingSettings;
class ReadingWindow;
class ScreenManager;
class SideWindowPlacer;

/// The window of the reading options, which is made when it is first asked for, and kept beside the
/// prompter.
class ReadingPanel {
public:
    /// Everything is borrowed but the help.
    ReadingPanel(ReadingSettings& reading, const PrompterWindow& prompter,
                 const ScreenManager& screens, const AppSettings& settings, LookHelp help);
    ~ReadingPanel();
    ReadingPanel(const ReadingPanel&) = delete;
    ReadingPanel& operator=(const ReadingPanel&) = delete;

    /// Brings the window to the front.
    void show();

    /// Puts the window where it can be used, if there is one.
    void place();

private:
    void makeWindow();

    ReadingSettings& reading;
    const PrompterWindow& prompter;
    const ScreenManager& screens;
    const AppSettings& settings;
    const LookHelp help;
    std::unique_ptr<ReadingWindow> window;
    std::unique_ptr<SideWindowPlacer> placer;
};

} // namespace tessaline
