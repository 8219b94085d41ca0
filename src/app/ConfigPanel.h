#pragma once

#include <memory>

namespace tessaline {

class AppSettings;
class ConfigWindow;
class PrompterWindow;
class ScreenManager;
class SideWindowPlacer;
class SourceManager;
struct Platform;
struct Services;

/// The settings window, kept beside the prompter.
class ConfigPanel {
public:
    /// Makes the window; shows nothing yet. Everything is borrowed.
    ConfigPanel(AppSettings& settings, SourceManager& sources, const PrompterWindow& prompter,
                ScreenManager& screens, const Platform& platform, const Services& services);
    ~ConfigPanel();
    ConfigPanel(const ConfigPanel&) = delete;
    ConfigPanel& operator=(const ConfigPanel&) = delete;

    ConfigWindow& window() const { return *configWindow; }

    /// Brings the window to the front, with the settings as they are now.
    void show();

    /// Puts the window where it can be used.
    void place();

private:
    std::unique_ptr<ConfigWindow> configWindow;
    std::unique_ptr<SideWindowPlacer> placer;
};

} // namespace tessaline
